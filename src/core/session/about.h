#pragma once

#include <QList>
#include <QString>

namespace trimlog {

class Session;

/// One line of what the program tells about itself: "License" and its value.
struct AboutFact {
  QString label;
  QString value;
};

/// What the About box shows below its picture: whose profile is open, the license, and where the data stand.
QList<AboutFact> AboutFacts(Session &session);

/// Everything that a report of a problem should tell, one line a fact: the above, the version and what it runs on.
QString AboutDetails(Session &session);

}  // namespace trimlog
