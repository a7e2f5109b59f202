#include "core/session/help_pages.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <algorithm>

namespace trimlog {

namespace {

const QString firstPage = QStringLiteral("index");
constexpr int passageLength = 170;
constexpr int lead = 50;  // of a passage before the word that was found
constexpr int inTitle = 40;
constexpr int inHeading = 12;
constexpr int mostMentions = 5;

QString PlainText(QString markup) {
  static const QRegularExpression tags(QStringLiteral("<[^>]*>"));
  // Cells and items are words of their own, bold letters are not.
  static const QRegularExpression blocks(QStringLiteral("</(td|th|tr|li|p|h[1-6])>|<br>"));
  markup.replace(blocks, QStringLiteral(" ")).remove(tags);
  markup.replace(QStringLiteral("&lt;"), QStringLiteral("<")).replace(QStringLiteral("&gt;"), QStringLiteral(">"));
  return markup.replace(QStringLiteral("&amp;"), QStringLiteral("&")).simplified();
}

void AddSections(const QString &path, std::vector<HelpSection> &sections) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QString page = QString::fromUtf8(file.readAll());
  static const QRegularExpression heading(
      QStringLiteral("<h([12])(?: id=\"([^\"]*)\")?>(.*?)</h\\1>(.*?)(?=<h[12]|</body>)"),
      QRegularExpression::DotMatchesEverythingOption);
  QString title;
  for (auto found = heading.globalMatch(page); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    const bool isTitle = match.captured(1) == QStringLiteral("1");
    if (isTitle) title = PlainText(match.captured(3));
    QUrl address = QUrl::fromLocalFile(path);
    if (!match.captured(2).isEmpty()) address.setFragment(match.captured(2));
    sections.push_back(
        {address, title, isTitle ? QString() : PlainText(match.captured(3)), PlainText(match.captured(4))});
  }
}

/// Matches any of the words where a word of the text begins with it; the whole beginning is captured.
QRegularExpression WordPattern(const QStringList &words) {
  QStringList escaped;
  for (const QString &word : words) escaped.append(QRegularExpression::escape(word));
  return QRegularExpression(QStringLiteral("(?<![\\w])(%1)").arg(escaped.join(u'|')),
                            QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
}

int Mentions(const QString &text, const QRegularExpression &word) {
  int count = 0;
  for (auto found = word.globalMatch(text); found.hasNext() && count < mostMentions; found.next()) ++count;
  return count;
}

/// What the words weigh in a section; 0 for each that is missing.
std::vector<int> Weights(const HelpSection &section, const std::vector<QRegularExpression> &words) {
  std::vector<int> weights;
  weights.reserve(words.size());
  for (const QRegularExpression &word : words) {
    weights.push_back(inTitle * (Mentions(section.title, word) > 0) +
                      inHeading * (Mentions(section.heading, word) > 0) + Mentions(section.text, word));
  }
  return weights;
}

/// A line of a section around the first word that was found, the words bold.
QString Passage(const QString &text, const QStringList &words) {
  const QRegularExpression pattern = WordPattern(words);
  const auto at = std::max<qsizetype>(pattern.match(text).capturedStart(), 0);
  const qsizetype start = at <= lead ? 0 : text.indexOf(u' ', at - lead) + 1;
  qsizetype end = std::min(start + passageLength, text.size());
  if (end < text.size()) end = std::max(text.lastIndexOf(u' ', end), start + 1);
  const QString passage = text.mid(start, end - start);
  QString markup = start > 0 ? QStringLiteral("... ") : QString();
  qsizetype shown = 0;
  for (auto found = pattern.globalMatch(passage); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    markup += passage.mid(shown, match.capturedStart() - shown).toHtmlEscaped() + QStringLiteral("<b>") +
              match.captured().toHtmlEscaped() + QStringLiteral("</b>");
    shown = match.capturedEnd();
  }
  return markup + passage.mid(shown).toHtmlEscaped() + (end < text.size() ? QStringLiteral(" ...") : QString());
}

}  // namespace

QString HelpFolder(const QString &programDirectory) { return programDirectory + QStringLiteral("/help/"); }

QUrl HelpAddress(const QString &folder, const QString &topic) {
  const QString page = folder + topic.section(u'#', 0, 0) + QStringLiteral(".html");
  const bool there = !topic.isEmpty() && QFile::exists(page);
  const QString path = there ? page : folder + firstPage + QStringLiteral(".html");
  if (!there && !QFile::exists(path)) return {};
  QUrl address = QUrl::fromLocalFile(path);
  if (there && topic.contains(u'#')) address.setFragment(topic.section(u'#', 1));
  return address;
}

std::vector<HelpSection> ReadHelpPages(const QString &folder) {
  std::vector<HelpSection> sections;
  const QFileInfoList pages = QDir(folder).entryInfoList({QStringLiteral("*.html")}, QDir::Files, QDir::Name);
  for (const QFileInfo &page : pages) AddSections(page.filePath(), sections);
  return sections;
}

QStringList SearchWords(const QString &typed) {
  static const QRegularExpression blanks(QStringLiteral("[\\s,;.?!\"]+"));
  QStringList words = typed.toLower().split(blanks, Qt::SkipEmptyParts);
  words.removeDuplicates();
  return words;
}

std::vector<HelpSection> SearchHelp(const std::vector<HelpSection> &sections, const QStringList &words) {
  std::vector<QRegularExpression> patterns;
  for (const QString &word : words) patterns.push_back(WordPattern({word}));

  struct Page {
    const HelpSection *best = nullptr;
    int bestWeight = -1;
    int weight = 0;
    std::vector<bool> held;
  };
  std::vector<Page> pages;
  QHash<QString, size_t> pageOf;
  for (const HelpSection &section : sections) {
    const QString path = section.address.path();
    if (!pageOf.contains(path)) {
      pageOf.insert(path, pages.size());
      pages.push_back({.held = std::vector<bool>(patterns.size())});
    }
    Page &page = pages[pageOf.value(path)];
    int weight = 0;
    const std::vector<int> weights = Weights(section, patterns);
    for (size_t i = 0; i < weights.size(); ++i) {
      weight += weights[i];
      if (weights[i] > 0) page.held[i] = true;
    }
    page.weight = std::max(page.weight, weight);
    if (weight <= page.bestWeight) continue;
    page.best = &section;
    page.bestWeight = weight;
  }
  std::erase_if(pages, [&](const Page &page) {
    return words.isEmpty() || std::find(page.held.begin(), page.held.end(), false) != page.held.end();
  });
  std::stable_sort(pages.begin(), pages.end(),
                   [](const Page &one, const Page &other) { return one.weight > other.weight; });
  std::vector<HelpSection> found;
  found.reserve(pages.size());
  for (const Page &page : pages) found.push_back(*page.best);
  return found;
}

QString SearchPage(const QString &typed, const std::vector<HelpSection> &found, const QUrl &home) {
  const QStringList words = SearchWords(typed);
  const auto link = [](const QUrl &address, const QString &text) {
    return QStringLiteral("<a href=\"%1\">%2</a>")
        .arg(QString::fromLatin1(address.toEncoded()).toHtmlEscaped(), text.toHtmlEscaped());
  };
  QString page = QStringLiteral("<html><head><title>Search results</title></head><body><h1>Search results</h1><p>");
  if (words.isEmpty()) {
    page += QStringLiteral("Type a word that you are looking for into the field above, and press Enter.");
  } else {
    page += QStringLiteral("%1 for <b>%2</b>")
                .arg(found.empty()       ? QStringLiteral("No page was found")
                     : found.size() == 1 ? QStringLiteral("1 page was found")
                                         : QStringLiteral("%1 pages were found").arg(found.size()),
                     typed.trimmed().toHtmlEscaped());
    page += found.empty() ? QStringLiteral(". Try fewer words, or only the beginning of one.") : QStringLiteral(".");
  }
  page += QStringLiteral("</p>");
  for (const HelpSection &section : found) {
    const QString name =
        section.heading.isEmpty() ? section.title : section.title + QStringLiteral(": ") + section.heading;
    page += QStringLiteral("<p>%1<br>%2</p>").arg(link(section.address, name), Passage(section.text, words));
  }
  return page + QStringLiteral("<p>%1</p></body></html>").arg(link(home, QStringLiteral("All topics")));
}

}  // namespace trimlog
