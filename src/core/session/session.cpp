#include "core/session/session.h"

#include <QDir>

#include "platform/error.h"

namespace trimlog {

Session::Session(const SessionPlaces &places)
    : programDirectory(places.programDirectory),
      store(places.store),
      clock(places.clock),
      machine(places.machine),
      boxes(places.boxes),
      locale(places.locale) {}

Session::~Session() = default;

Database &Session::Data() const {
  if (!database) throw Error(error_number::cannotOpen, QStringLiteral("The data file is not open."));
  return *database;
}

bool Session::IsSample() const { return IsSampleProfile(CurrentPersonID); }

QString Session::DataFilePath() const { return QDir(programDirectory).filePath(QStringLiteral("tlg.dat")); }

bool IsSampleProfile(const QString &personID) {
  return personID == QLatin1String("-1") || personID == QLatin1String("-2") || personID == QLatin1String("-3") ||
         personID == QLatin1String("-4");
}

}  // namespace trimlog
