#include "core/session/about.h"

#include <QDir>
#include <QSysInfo>

#include "core/frame/frame_data.h"
#include "core/session/product.h"
#include "core/session/session.h"

namespace trimlog {

QList<AboutFact> AboutFacts(Session &session) {
  QString profile;
  if (session.database) profile = ReadPersonFigures(session).PersonName;
  return {{QStringLiteral("Profile"), profile.isEmpty() ? QStringLiteral("None") : profile},
          {QStringLiteral("License"), product::license},
          {QStringLiteral("Data file"), QDir::toNativeSeparators(session.DataFilePath())}};
}

QString AboutDetails(Session &session) {
  QString details = product::name + u' ' + product::version;
  if (session.edition.SeravaEdition) details += QStringLiteral(", ") + product::seravaEdition;
  QList<AboutFact> facts = AboutFacts(session);
  facts.append({{QStringLiteral("System"),
                 QSysInfo::prettyProductName() + QStringLiteral(", ") + QSysInfo::currentCpuArchitecture()},
                {QStringLiteral("Qt"), QString::fromLatin1(qVersion())},
                {QStringLiteral("Language"), session.locale.name()}});
  for (const AboutFact &fact : facts) details += u'\n' + fact.label + QStringLiteral(": ") + fact.value;
  return details + u'\n';
}

}  // namespace trimlog
