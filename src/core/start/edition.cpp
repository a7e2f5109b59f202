#include "core/start/edition.h"

#include "core/session/product.h"

namespace trimlog {

namespace {

const QString handheldKey = settingsRoot + QStringLiteral("\\PPC");

QString Stored(const Session &session, const char *name) {
  return session.store.GetSettingString(settingsRoot, QLatin1String(name));
}

}  // namespace

void LoadBizEdSettings(Session &session) {
  session.edition.BizEd = Stored(session, "BizEd") == QLatin1String("-1");
  session.edition.BizEdLoginMode = Stored(session, "BizEdLoginMode") == QLatin1String("-1");
}

void LoadHandheldSettings(Session &session) {
  session.edition.HandheldSupport =
      !session.store.GetSettingString(handheldKey, QStringLiteral("DaysHistory")).isEmpty();
}

void LoadSeravaSetting(Session &session) {
  const QString stored = Stored(session, "Serava");
  session.edition.SeravaEdition = !stored.isEmpty() && stored != QLatin1String("0");
}

QString ApplicationTitle(const Session &session) {
  const QString ofGroup = session.edition.BizEdLoginMode ? Stored(session, "BizTitle") : QString();
  if (!ofGroup.isEmpty()) return ofGroup;
  const QString name = session.edition.SeravaEdition ? product::name + u' ' + product::seravaEdition : product::name;
  return name + u' ' + product::version;
}

bool ActiveSyncOnExit(const Session &session) {
  return session.store.GetSettingString(handheldKey, QStringLiteral("ActiveSyncOnExit")) != QLatin1String("0");
}

}  // namespace trimlog
