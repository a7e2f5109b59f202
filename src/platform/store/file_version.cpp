#include "platform/store/file_version.h"

#include <QFile>
#include <QMap>
#include <QtEndian>

namespace trimlog {

namespace {

/// One node of a version block: length, value's length and type as 16-bit numbers, a name that ends with a NUL, the
/// value, then nodes below it; value and nodes begin at multiples of four.
struct Node {
  QString name;
  qsizetype valueAt = 0;
  qsizetype valueLength = 0;  ///< as written: characters for text, bytes for the root
  qsizetype end = 0;          ///< 0: there is no sound node
};

constexpr qsizetype headLength = 6;

qsizetype Aligned(qsizetype offset) { return (offset + 3) & ~qsizetype{3}; }

qsizetype WordAt(QByteArrayView block, qsizetype offset) {
  return offset + 2 <= block.size() ? qFromLittleEndian<quint16>(block.data() + offset) : 0;
}

/// Text up to its NUL; moves the offset behind it.
QString TextAt(QByteArrayView block, qsizetype &offset) {
  QString text;
  while (const qsizetype unit = WordAt(block, offset)) {
    text += QChar(static_cast<char16_t>(unit));
    offset += 2;
  }
  offset += 2;
  return text;
}

Node NodeAt(QByteArrayView block, qsizetype offset) {
  Node node;
  const qsizetype length = WordAt(block, offset);
  if (length <= headLength || offset + length > block.size()) return node;
  node.valueLength = WordAt(block, offset + 2);
  qsizetype behindName = offset + headLength;
  node.name = TextAt(block.first(offset + length), behindName);
  node.valueAt = Aligned(behindName);
  node.end = offset + length;
  return node;
}

/// Walks the nodes from an offset to an end.
template <typename Visit>
void EachNode(QByteArrayView block, qsizetype offset, qsizetype end, const Visit &visit) {
  while (offset < end) {
    const Node node = NodeAt(block, offset);
    if (node.end == 0) return;
    visit(node);
    offset = Aligned(node.end);
  }
}

/// The named texts of the block's first language.
QMap<QString, QString> TextsOf(QByteArrayView block) {
  QMap<QString, QString> texts;
  const Node root = NodeAt(block, 0);
  EachNode(block, Aligned(root.valueAt + root.valueLength), root.end, [&](const Node &information) {
    if (information.name != QLatin1String("StringFileInfo")) return;
    EachNode(block, information.valueAt, information.end, [&](const Node &language) {
      EachNode(block, language.valueAt, language.end, [&](const Node &entry) {
        qsizetype offset = entry.valueAt;
        if (entry.valueLength > 0 && !texts.contains(entry.name)) {
          texts[entry.name] = TextAt(block.first(entry.end), offset);
        }
      });
    });
  });
  return texts;
}

}  // namespace

QString VersionTextOf(const QByteArray &content) {
  const QString rootName = QStringLiteral("VS_VERSION_INFO");
  const QByteArray mark(reinterpret_cast<const char *>(rootName.utf16()), rootName.size() * 2);
  const qsizetype at = content.indexOf(mark) - headLength;
  const QMap<QString, QString> texts = at >= 0 ? TextsOf(QByteArrayView(content).sliced(at)) : QMap<QString, QString>();
  if (texts.isEmpty()) return QStringLiteral("No version available for this file");

  static constexpr std::pair<const char *, const char *> lines[] = {
      {"Company Name: ", "CompanyName"},       {"File Description:", "FileDescription"},
      {"File Version:", "FileVersion"},        {"Internal Name: ", "InternalName"},
      {"Legal Copyright: ", "LegalCopyright"}, {"Original FileName:", "OriginalFilename"},
      {"Product Name:", "ProductName"},        {"Product Version: ", "ProductVersion"},
  };
  QStringList told;
  for (const auto &[label, name] : lines) told.append(QLatin1String(label) + texts.value(QLatin1String(name)));
  return told.join(u'\n');
}

QString FileVersionText(const QString &path) {
  QFile file(path);
  return VersionTextOf(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
}

}  // namespace trimlog
