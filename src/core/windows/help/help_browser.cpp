#include "core/windows/help/help_browser.h"

#include "core/session/help_pages.h"

namespace trimlog {

namespace {

const QString searchScheme = QStringLiteral("search");

}  // namespace

HelpBrowser::HelpBrowser(const QString &folder, QWidget *parent) : QTextBrowser(parent), folder_(folder) {}

QUrl HelpBrowser::SearchAddress(const QString &typed) {
  QUrl address;
  address.setScheme(searchScheme);
  address.setPath(typed);
  return address;
}

QVariant HelpBrowser::loadResource(int type, const QUrl &address) {
  if (address.scheme() != searchScheme) return QTextBrowser::loadResource(type, address);
  const QString typed = address.path();
  return SearchPage(typed, SearchHelp(ReadHelpPages(folder_), SearchWords(typed)), HelpAddress(folder_, {}));
}

}  // namespace trimlog
