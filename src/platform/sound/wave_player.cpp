// The audio part of the machine, a library of its own that the program loads with the first sound: the libraries below
// it would otherwise make up half of the program's start.
#include <QAudioDevice>
#include <QCoreApplication>
#include <QMediaDevices>
#include <QPointer>
#include <QSoundEffect>
#include <QUrl>

/// Plays one wave file at a time, beside the event loop. Without an audio device it does nothing.
extern "C" Q_DECL_EXPORT void PlayWave(const QString &path) {
  if (QMediaDevices::defaultAudioOutput().isNull()) return;
  static QPointer<QSoundEffect> effect;
  if (!effect) effect = new QSoundEffect(QCoreApplication::instance());  // ends with the program
  effect->stop();
  effect->setSource(QUrl::fromLocalFile(path));
  effect->play();
}
