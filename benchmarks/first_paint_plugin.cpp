// Tells when a window of a Qt program is first painted. Any Qt program loads it when the environment says
// QT_QPA_GENERIC_PLUGINS=firstpaint:NAME (the widget's object name) and QT_PLUGIN_PATH leads here; nothing is linked
// in, so that the program measured is the program shipped. Writes one line to the file descriptor FIRST_PAINT_FD:
// nanoseconds on the monotonic clock, and nanoseconds of processor time that the process has used.
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <ctime>

namespace {

qint64 Nanoseconds(clockid_t clock) {
  timespec time{};
  clock_gettime(clock, &time);
  return time.tv_sec * qint64{1'000'000'000} + time.tv_nsec;
}

class FirstPaint final : public QObject {
 public:
  explicit FirstPaint(const QString &widget) : widget_(widget) {
    QCoreApplication::instance()->installEventFilter(this);
  }

  bool eventFilter(QObject *receiver, QEvent *event) override {
    if (!seen_ && event->type() == QEvent::Paint && receiver->objectName() == widget_) {
      seen_ = true;
      // Told once the whole window is painted and flushed, and events run again.
      QMetaObject::invokeMethod(this, &FirstPaint::Tell, Qt::QueuedConnection);
    }
    return false;
  }

 private:
  static void Tell() {
    const QByteArray line = QByteArray::number(Nanoseconds(CLOCK_MONOTONIC)) + ' ' +
                            QByteArray::number(Nanoseconds(CLOCK_PROCESS_CPUTIME_ID)) + '\n';
    [[maybe_unused]] const ssize_t written = write(qEnvironmentVariableIntValue("FIRST_PAINT_FD"), line, line.size());
  }

  const QString widget_;
  bool seen_ = false;
};

}  // namespace

class FirstPaintPlugin final : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "first_paint_plugin.json")
 public:
  QObject *create(const QString &, const QString &widget) override { return new FirstPaint(widget); }
};

#include "first_paint_plugin.moc"
