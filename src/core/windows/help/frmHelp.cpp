#include "core/windows/help/frmHelp.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include "core/session/help_pages.h"
#include "core/windows/controls/art.h"
#include "core/windows/help/help_browser.h"
#include "core/windows/help/help_style.h"
#include "platform/windows/machine/window_stacking.h"

namespace trimlog {

namespace {

constexpr int lettersWide = 96;
constexpr int searchLetters = 30;
constexpr int linesHigh = 34;
constexpr double mostOfScreen = 0.85;
constexpr int pageMargin = 18;

}  // namespace

frmHelp::frmHelp(const QString &folder, const std::function<void(const QString &address)> &OpenWebPage)
    : QWidget(nullptr, Qt::Window),
      folder_(folder),
      OpenWebPage_(OpenWebPage),
      txtSearch(new QLineEdit(this)),
      brwPage(new HelpBrowser(folder, this)) {
  setObjectName(QStringLiteral("frmHelp"));
  setWindowTitle(tr("Trimlog Pro Help"));
  setWindowIcon(ArtIcon(QStringLiteral("help")));
  auto *layout = new QVBoxLayout(this);
  layout->addLayout(new QHBoxLayout);
  AddCommands();
  brwPage->setObjectName(QStringLiteral("brwPage"));
  brwPage->setAccessibleName(tr("Help page"));
  brwPage->setOpenLinks(false);
  brwPage->document()->setDocumentMargin(pageMargin);
  layout->addWidget(brwPage);
  ShowStyle();
  connect(brwPage, &QTextBrowser::anchorClicked, this, &frmHelp::Follow);
  connect(brwPage, &QTextBrowser::sourceChanged, this,
          [this] { setWindowTitle(tr("%1 - Trimlog Pro Help").arg(brwPage->documentTitle())); });
  connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, txtSearch, [this] {
    txtSearch->setFocus(Qt::ShortcutFocusReason);
    txtSearch->selectAll();
  });
}

void frmHelp::AddCommands() {
  QToolButton *const cmdBack = AddCommand("cmdBack", tr("&Back"), "previous", QKeySequence(Qt::ALT | Qt::Key_Left));
  QToolButton *const cmdForward =
      AddCommand("cmdForward", tr("&Forward"), "next", QKeySequence(Qt::ALT | Qt::Key_Right));
  QToolButton *const cmdHome = AddCommand("cmdHome", tr("&Home"), "home", QKeySequence(Qt::ALT | Qt::Key_Home));
  connect(cmdBack, &QToolButton::clicked, brwPage, &QTextBrowser::backward);
  connect(cmdForward, &QToolButton::clicked, brwPage, &QTextBrowser::forward);
  connect(cmdHome, &QToolButton::clicked, this, [this] { brwPage->setSource(HelpAddress(folder_, {})); });
  cmdBack->setEnabled(false);
  cmdForward->setEnabled(false);
  connect(brwPage, &QTextBrowser::backwardAvailable, cmdBack, &QWidget::setEnabled);
  connect(brwPage, &QTextBrowser::forwardAvailable, cmdForward, &QWidget::setEnabled);

  auto *row = static_cast<QHBoxLayout *>(layout()->itemAt(0)->layout());
  row->addStretch(1);
  txtSearch->setObjectName(QStringLiteral("txtSearch"));
  txtSearch->setAccessibleName(tr("Search all help pages"));
  txtSearch->setPlaceholderText(tr("Search all pages"));
  txtSearch->setToolTip(tr("Words to look for (Ctrl+F)"));
  txtSearch->setClearButtonEnabled(true);
  txtSearch->setMinimumWidth(fontMetrics().averageCharWidth() * searchLetters);
  row->addWidget(txtSearch);
  QToolButton *const cmdSearch = AddCommand("cmdSearch", tr("&Search"), "search", {});
  connect(txtSearch, &QLineEdit::returnPressed, this, &frmHelp::Search);
  connect(cmdSearch, &QToolButton::clicked, this, &frmHelp::Search);
}

QToolButton *frmHelp::AddCommand(const char *name, const QString &caption, const char *picture,
                                 const QKeySequence &keys) {
  auto *button = new QToolButton(this);
  button->setObjectName(QLatin1String(name));
  button->setText(caption);
  button->setIcon(ArtIcon(QLatin1String(picture)));
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::StrongFocus);
  if (!keys.isEmpty()) {
    const QString spoken = QString(caption).remove(u'&');
    button->setToolTip(tr("%1 (%2)").arg(spoken, keys.toString(QKeySequence::NativeText)));
    // Beside the access key in the caption, which is a button's one shortcut.
    connect(new QShortcut(keys, this), &QShortcut::activated, button, &QToolButton::click);
  }
  layout()->itemAt(0)->layout()->addWidget(button);
  return button;
}

void frmHelp::Open(const QUrl &page) {
  brwPage->setSource(page);
  QWidget *const dialog = QApplication::activeModalWidget();
  if (!testAttribute(Qt::WA_WState_Created)) PlaceBeside(dialog ? dialog : QApplication::activeWindow());
  if (!isVisible()) brwPage->setFocus();
  BelongTo(dialog);
  RaiseWindow(this);
}

void frmHelp::PlaceBeside(const QWidget *other) {
  const QScreen *screen = other ? other->screen() : QApplication::primaryScreen();
  const QRect usable = screen->availableGeometry();
  const QSize wanted(fontMetrics().averageCharWidth() * lettersWide, fontMetrics().lineSpacing() * linesHigh);
  resize(wanted.boundedTo(usable.size() * mostOfScreen));
  QRect place(QPoint(), size());
  place.moveCenter(usable.center());
  if (other) {
    const QRect there = other->frameGeometry();
    const bool right = usable.right() - there.right() >= there.left() - usable.left();
    place.moveLeft(right ? std::min(there.right() + 1, usable.right() - place.width())
                         : std::max(there.left() - place.width(), usable.left()));
  }
  move(place.topLeft());
}

// A dialog shuts out every window that does not belong to it. It must not take the help along when it goes.
void frmHelp::BelongTo(QWidget *dialog) {
  if (dialog == parentWidget()) return;
  const QRect place = geometry();
  const bool shown = isVisible();
  if (parentWidget()) parentWidget()->removeEventFilter(this);
  setParent(dialog, windowFlags());  // hides the window
  if (dialog) dialog->installEventFilter(this);
  setGeometry(place);
  if (!shown) return;
  setAttribute(Qt::WA_ShowWithoutActivating);
  show();
  setAttribute(Qt::WA_ShowWithoutActivating, false);
}

// A dialog that opens while the help is read comes up in front of it; the help is let through to it where it stands.
void frmHelp::StayUsable() {
  const QWidget *top = QApplication::activeModalWidget();
  QWindow *const owner = top ? top->windowHandle() : nullptr;
  if (!windowHandle() || windowHandle()->transientParent() == owner) return;
  windowHandle()->setTransientParent(owner);
  if (!owner) return;
  const auto once = static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection);
  connect(owner, &QWindow::visibleChanged, this, &frmHelp::StayUsable, once);
  connect(owner, &QObject::destroyed, this, &frmHelp::StayUsable, once);
}

bool frmHelp::event(QEvent *event) {
  if (event->type() == QEvent::WindowBlocked)
    QMetaObject::invokeMethod(this, &frmHelp::StayUsable, Qt::QueuedConnection);
  return QWidget::event(event);
}

bool frmHelp::eventFilter(QObject *watched, QEvent *event) {
  if (watched == parentWidget() && event->type() == QEvent::Hide && !event->spontaneous()) {
    BelongTo(QApplication::activeModalWidget());
  }
  return false;
}

void frmHelp::Follow(const QUrl &link) {
  if (link.isLocalFile()) {
    brwPage->setSource(link);
  } else {
    OpenWebPage_(link.toString());
  }
}

void frmHelp::Search() {
  brwPage->setSource(HelpBrowser::SearchAddress(txtSearch->text()));
  brwPage->setFocus();
}

void frmHelp::ShowStyle() {
  QPalette field;  // some desktops leave the hint in an empty field as dark as the field
  QColor hint = palette().color(QPalette::Text);
  hint.setAlphaF(0.7F);
  field.setColor(QPalette::PlaceholderText, hint);
  txtSearch->setPalette(field);
  brwPage->document()->setDefaultStyleSheet(HelpStyleSheet(HelpColoursOf(palette()), font()));
  if (brwPage->source().isEmpty()) return;
  const int place = brwPage->verticalScrollBar()->value();
  brwPage->reload();
  brwPage->verticalScrollBar()->setValue(place);
}

void frmHelp::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) ShowStyle();
}

}  // namespace trimlog
