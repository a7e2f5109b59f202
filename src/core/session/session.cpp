#include "core/session/session.h"

#include <QDir>

#include "core/session/error_log.h"
#include "platform/error.h"

namespace trimlog {

Session::Session(const SessionPlaces &places)
    : programDirectory(places.programDirectory),
      store(places.store),
      clock(places.clock),
      machine(places.machine),
      boxes(places.boxes),
      printing(places.printing),
      locale(places.locale) {
  store.writeFailed = [this](const QString &place) {
    LogError(*this, QStringLiteral("basRegistry"), QStringLiteral("SaveSettingString"),
             QStringLiteral("The settings could not be written: ") + place);
  };
}

Session::~Session() { store.writeFailed = nullptr; }

Database &Session::Data() const {
  if (!database) throw Error(error_number::cannotOpen, QStringLiteral("The data file is not open."));
  return *database;
}

QString Session::DataFilePath() const { return QDir(programDirectory).filePath(QStringLiteral("tlg.dat")); }

}  // namespace trimlog
