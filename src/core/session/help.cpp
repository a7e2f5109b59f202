#include "core/session/help.h"

#include <QFile>
#include <QUrl>

#include "core/session/system_services.h"

namespace trimlog {

void ShowHelp(Session &session, const QString &topic) {
  const QString folder = session.programDirectory + QStringLiteral("/help/");
  for (const QString &page : {topic, QStringLiteral("index")}) {
    const QString path = folder + page + QStringLiteral(".html");
    if (page.isEmpty() || !QFile::exists(path)) continue;
    GotoWebAddress(session, QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    return;
  }
  session.boxes.Inform(QStringLiteral("Trimlog Pro Help"),
                       QStringLiteral("The help file could not be found.  It belongs into this folder:\n\n") + folder);
}

}  // namespace trimlog
