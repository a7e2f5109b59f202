#include "core/edition.h"

namespace trimlog {

namespace {

const QString handheldKey = settingsRoot + QStringLiteral("\\PPC");

QString Stored(const Session &session, const char *name) {
  return session.store.GetSettingString(settingsRoot, QLatin1String(name));
}

}  // namespace

void LoadBizEdSettings(Session &session) {
  session.BizEd = Stored(session, "BizEd") == QLatin1String("-1");
  session.BizEdLoginMode = Stored(session, "BizEdLoginMode") == QLatin1String("-1");
}

void LoadHandheldSettings(Session &session) {
  session.HandheldSupport = !session.store.GetSettingString(handheldKey, QStringLiteral("DaysHistory")).isEmpty();
}

void LoadSeravaSetting(Session &session) {
  const QString stored = Stored(session, "Serava");
  session.SeravaEdition = !stored.isEmpty() && stored != QLatin1String("0");
}

bool ActiveSyncOnExit(const Session &session) {
  return session.store.GetSettingString(handheldKey, QStringLiteral("ActiveSyncOnExit")) != QLatin1String("0");
}

}  // namespace trimlog
