#include "core/windows/setup/frmSetup.h"
#include "core/windows/setup/setup_calendar_page.h"
#include "core/windows/setup/setup_charts_page.h"
#include "core/windows/setup/setup_colours_page.h"
#include "core/windows/setup/setup_journal_page.h"
#include "core/windows/setup/setup_other_page.h"
#include "core/windows/setup/setup_profiles_page.h"

namespace trimlog {

QList<SetupPageMaker> CoreSetupPages() {
  return {
      {SetupTab::Profiles, QStringLiteral("&Profiles"),
       [](Session &session, const Navigator &navigator, QWidget *parent) -> SetupPage * {
         return new SetupProfilesPage(session, navigator, parent);
       }},
      {SetupTab::Calendar, QStringLiteral("Calendar and &Units"),
       [](Session &session, const Navigator &, QWidget *parent) -> SetupPage * {
         return new SetupCalendarPage(session, parent);
       }},
      {SetupTab::Charts, QStringLiteral("C&harts"),
       [](Session &, const Navigator &, QWidget *parent) -> SetupPage * { return new SetupChartsPage(parent); }},
      {SetupTab::Colors, QStringLiteral("Colors and &Display"),
       [](Session &session, const Navigator &, QWidget *parent) -> SetupPage * {
         return new SetupColoursPage(session, parent);
       }},
      {SetupTab::Journal, QStringLiteral("&Journal"),
       [](Session &, const Navigator &, QWidget *parent) -> SetupPage * { return new SetupJournalPage(parent); }},
      {SetupTab::Other, QStringLiteral("O&ther"),
       [](Session &session, const Navigator &navigator, QWidget *parent) -> SetupPage * {
         return new SetupOtherPage(session, navigator, parent);
       }},
  };
}

}  // namespace trimlog
