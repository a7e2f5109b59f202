#include "journal/windows/page_buttons.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "core/windows/controls/art.h"
#include "platform/windows/controls/spacing.h"

namespace trimlog {

namespace {

constexpr int smallPageMargin = 2;

/// The key behind the "&" of a caption.
QKeySequence AccessKeyOf(const QString &caption) { return QKeySequence::mnemonic(caption); }

QString SpokenCaption(QString caption) { return caption.remove(QLatin1Char('&')).remove(QStringLiteral("...")); }

}  // namespace

PageButtons::PageButtons(bool small, QWidget *page)
    : QWidget(page),
      small_(small),
      layout_(new QBoxLayout(small ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, this)) {
  layout_->setContentsMargins(0, 0, 0, 0);
  if (small_) layout_->setSpacing(smallPageMargin);
}

QPushButton *PageButtons::Add(const PageButton &button) {
  auto *made = new QPushButton(this);
  made->setObjectName(button.name);
  made->setAutoDefault(false);  // Enter belongs to the lists
  made->setAccessibleName(SpokenCaption(button.caption));
  if (!button.art.isEmpty()) made->setIcon(ArtIcon(button.art));
  if (small_) {
    made->setFlat(true);
    made->setShortcut(AccessKeyOf(button.caption));
    const QString key = made->shortcut().toString(QKeySequence::NativeText);
    made->setToolTip(key.isEmpty() ? button.tip : QStringLiteral("%1 (%2)").arg(button.tip, key));
  } else {
    made->setText(button.caption);
    made->setToolTip(button.tip);
  }
  layout_->addWidget(made);
  return made;
}

QPushButton *PageButtons::AddNew(const QString &name, const QString &tip) {
  return Add({name, QStringLiteral("&New..."), tip, QStringLiteral("add")});
}

QPushButton *PageButtons::AddDelete(const QString &name, const QString &tip) {
  return Add({name, QStringLiteral("&Delete"), tip, QStringLiteral("delete")});
}

QPushButton *PageButtons::AddPrint(const QString &name, const QString &tip) {
  return Add({name, QStringLiteral("P&rint..."), tip, QStringLiteral("print")});
}

void PageButtons::AddStretch() { layout_->addStretch(); }

void PageButtons::AddControl(QWidget *control) { layout_->addWidget(control); }

QVBoxLayout *PageButtons::LayOutPage() {
  auto *content = new QVBoxLayout;
  auto *page = new QBoxLayout(small_ ? QBoxLayout::RightToLeft : QBoxLayout::TopToBottom, parentWidget());
  const int margin = small_ ? smallPageMargin : spacing::between;
  page->setContentsMargins(margin, margin, margin, margin);
  page->setSpacing(margin);
  content->setSpacing(small_ ? 0 : spacing::between);
  page->addWidget(this);
  page->addLayout(content, 1);
  return content;
}

}  // namespace trimlog
