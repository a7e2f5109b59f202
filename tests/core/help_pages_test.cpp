#include "core/session/help_pages.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/session/help_topics.h"
#include "support/paths.h"

namespace trimlog {
namespace {

class HelpPagesTest : public ::testing::Test {
 protected:
  HelpPagesTest() {
    Write("index", "<h1>All topics</h1><p>Find weights here.</p>");
    Write("meals",
          "<h1>Meals</h1><p>Add a food.</p><h2 id=\"labels\">Food labels</h2><p>Percent of <b>sug</b>ar &amp; fat "
          "&lt;total&gt;.</p>");
    Write("weights",
          "<h1>Weights</h1><p>Type a weight. A weight is saved at once.</p><h2 id=\"keys\">Keys</h2>"
          "<table><tr><td>Enter</td><td>next day</td></tr></table>");
  }
  void Write(const char *name, const QByteArray &body) {
    QFile file(folder_ + QLatin1String(name) + ".html");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<!doctype html><html><head><title>x</title></head><body>" + body + "</body></html>");
  }
  /// What a search finds, as "meals#labels weights".
  QString Found(const char *typed) {
    QStringList found;
    for (const HelpSection &section : SearchHelp(ReadHelpPages(folder_), SearchWords(QString::fromUtf8(typed)))) {
      const QString place = section.address.fragment();
      found.append(section.address.fileName().section(u'.', 0, 0) + (place.isEmpty() ? place : u'#' + place));
    }
    return found.join(u' ');
  }

  QTemporaryDir directory_;
  const QString folder_ = directory_.path() + QLatin1Char('/');
};

TEST_F(HelpPagesTest, ATopicIsAPageAndAPlaceOnIt) {
  const QString path = QUrl::fromLocalFile(folder_).toString();
  for (const auto &[topic, page] : {std::pair{"", "index.html"},
                                    {"weights", "weights.html"},
                                    {"weights#keys", "weights.html#keys"},
                                    {"nowhere#keys", "index.html"}}) {
    EXPECT_EQ(HelpAddress(folder_, topic).toString().toStdString(), path.toStdString() + page) << topic;
  }
  EXPECT_TRUE(HelpAddress(folder_ + "none/", "weights").isEmpty());
}

TEST_F(HelpPagesTest, ASearchFindsThePagesThatHoldAllWords) {
  const std::pair<const char *, const char *> searches[] = {
      {"WEIGHT", "weights index"},       // named by the word before mentioning it
      {"wei, type", "weights"},          // beginnings of words; both on one page
      {"eight", ""},                     // not the inside of a word
      {"food percent", "meals#labels"},  // the section that fits best
      {"add percent", "meals"},          // words in different sections of one page
      {"sugar", "meals#labels"},         // bold letters do not break a word
      {"enternext", ""},                 // cells do
      {"enter \"next", "weights#keys"},
      {"weight food", ""},
      {"(", ""},
      {"  ", ""}};
  for (const auto &[typed, found] : searches) EXPECT_EQ(Found(typed).toStdString(), found) << typed;
}

TEST_F(HelpPagesTest, WhatIsTypedAndFoundIsNeverMarkup) {
  const auto page = [this](const char *typed) {
    const QString words = QString::fromUtf8(typed);
    return SearchPage(words, SearchHelp(ReadHelpPages(folder_), SearchWords(words)), HelpAddress(folder_, {}));
  };
  EXPECT_TRUE(page("fat").contains("Percent of sugar &amp; <b>fat</b> &lt;total&gt;."));
  EXPECT_TRUE(page("fat").contains("1 page was found for <b>fat</b>."));
  EXPECT_TRUE(page("weight").contains("2 pages were found"));
  EXPECT_TRUE(page("<i>no").contains("No page was found for <b>&lt;i&gt;no</b>"));
  EXPECT_TRUE(page(" ").contains("Type a word"));
}

TEST(HelpFiles, AreSearchedAsTheyAreShipped) {
  const std::vector<HelpSection> sections = ReadHelpPages(SourceDir() + "/help/");
  const auto first = [&](const char *typed) {
    const std::vector<HelpSection> found = SearchHelp(sections, SearchWords(typed));
    return found.empty() ? QString() : found.front().address.fileName();
  };
  EXPECT_EQ(first("net calories"), "netcalories.html");
  EXPECT_EQ(first("password"), "profiles.html");
  EXPECT_EQ(first("wizard"), "wizard.html");
  EXPECT_EQ(HelpTopicOf(u"RewardsPage"), "options#rewards");
}

}  // namespace
}  // namespace trimlog
