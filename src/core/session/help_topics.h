#pragma once

#include <QString>
#include <QStringView>

namespace trimlog {

/// The help page that goes with a window, or with a page of one, by the name of its class: "calendar" for frmData. A
/// topic may name a section of its page: "options#rewards". "" where a class has none of its own.
QString HelpTopicOf(QStringView className);

}  // namespace trimlog
