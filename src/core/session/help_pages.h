#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <vector>

namespace trimlog {

/// The folder of the help pages, beside the program.
QString HelpFolder(const QString &programDirectory);

/// Where a topic ("calendar", "options#rewards", "" for the first page) is read: its page, or the first page where that
/// one is missing. An empty address when there are no pages at all.
QUrl HelpAddress(const QString &folder, const QString &topic);

/// What stands under one heading of a page.
struct HelpSection {
  QUrl address;     ///< of the page, with the heading's place in it
  QString title;    ///< of the page
  QString heading;  ///< "" for what stands under the title itself
  QString text;     ///< without markup
};

/// All pages of a folder by heading, in the order of their names. A page that cannot be read is left out.
std::vector<HelpSection> ReadHelpPages(const QString &folder);

/// The words of a search, each once, in small letters.
QStringList SearchWords(const QString &typed);

/// Of each page that holds all the words at the beginning of its words, the section that fits best; pages named by the
/// words come first.
std::vector<HelpSection> SearchHelp(const std::vector<HelpSection> &sections, const QStringList &words);

/// A page that lists what was found, each with a line of its text in which the words stand out. What was typed and what
/// was found are text, never markup.
QString SearchPage(const QString &typed, const std::vector<HelpSection> &found, const QUrl &home);

}  // namespace trimlog
