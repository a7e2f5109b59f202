#include "core/windows/help/help_desk.h"

#include <QApplication>
#include <QKeyEvent>

#include "core/session/help_pages.h"
#include "core/session/help_topics.h"
#include "core/session/system_services.h"
#include "core/windows/help/frmHelp.h"

namespace trimlog {

namespace {

QString TopicOfWidget(const QWidget *widget) {
  return HelpTopicOf(QString::fromLatin1(widget->metaObject()->className()).section(QStringLiteral("::"), -1));
}

}  // namespace

HelpDesk::HelpDesk(Session &session) : session_(session) { qApp->installEventFilter(this); }

HelpDesk::~HelpDesk() { delete window_; }

void HelpDesk::Show(const QString &topic) {
  const QString folder = HelpFolder(session_.programDirectory);
  const QUrl page = HelpAddress(folder, topic);
  if (page.isEmpty()) {
    session_.boxes.Inform(
        QStringLiteral("Trimlog Pro Help"),
        QStringLiteral("The help file could not be found.  It belongs into this folder:\n\n") + folder);
    return;
  }
  if (!window_) {
    window_ = new frmHelp(folder, [this](const QString &address) { GotoWebAddress(session_, address); });
  }
  window_->Open(page);
}

QString HelpDesk::TopicFor(const QWidget *widget) {
  for (const QWidget *window = widget ? widget->window() : nullptr; window;
       window = window->parentWidget() ? window->parentWidget()->window() : nullptr) {
    for (const QWidget *part : window->findChildren<QWidget *>()) {
      if (!part->isVisible() || part->window() != window) continue;
      if (const QString topic = TopicOfWidget(part); !topic.isEmpty()) return topic;
    }
    if (const QString topic = TopicOfWidget(window); !topic.isEmpty()) return topic;
  }
  return {};
}

// The key is taken before menus and dialogs see it: a shortcut of the frame is dead while a dialog is open.
bool HelpDesk::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
  const auto *key = static_cast<QKeyEvent *>(event);
  auto *widget = qobject_cast<QWidget *>(watched);
  if (!widget || key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) return false;
  event->accept();
  if (event->type() == QEvent::ShortcutOverride || key->isAutoRepeat()) return true;
  const QString topic = TopicFor(widget);
  while (QWidget *popup = QApplication::activePopupWidget()) popup->close();
  Show(topic);
  return true;
}

}  // namespace trimlog
