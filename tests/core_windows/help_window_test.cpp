#include "core/windows/controls/frmCalendar.h"
#include "core/windows/controls/theme.h"
#include "core/windows/frame/frmSplash.h"
#include "core/windows/help/frmHelp.h"
#include "core/windows/help/help_desk.h"
#include "core/windows/help/help_style.h"
#include "core/windows/profiles/frmEditPassword.h"
#include "core/windows/setup/frmSetup.h"
#include "support/paths.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

class HelpWindow : public ::testing::Test {
 protected:
  HelpWindow() : folder(session->programDirectory + "/help/") {
    QDir().mkpath(folder);
    const QDir shipped(SourceDir() + "/help");
    for (const QString &page : shipped.entryList(QDir::Files))
      EXPECT_TRUE(QFile::copy(shipped.filePath(page), folder + page));
  }

  static frmHelp *Help() {
    for (QWidget *window : QApplication::topLevelWidgets()) {
      auto *help = qobject_cast<frmHelp *>(window);
      if (help && help->isVisible()) return help;
    }
    return nullptr;
  }
  /// The page that is read, as "options.html#colors"; "" while there is no help window.
  static std::string Page() {
    if (!Help()) return {};
    const QUrl source = Browser().source();
    if (!source.isLocalFile()) return source.toString().toStdString();
    return (source.fileName() + (source.hasFragment() ? u'#' + source.fragment() : QString())).toStdString();
  }
  static QTextBrowser &Browser() { return Find<QTextBrowser>(*Help(), "brwPage"); }
  /// Keys arrive as they do from the screen: at the window, where a dialog may shut them out.
  static void Press(QWidget &window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(window.windowHandle(), static_cast<Qt::Key>(key), modifiers);
    QApplication::processEvents();
  }
  static void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { Press(*Help(), key, modifiers); }
  static void Type(const char *text) {
    for (const char *letter = text; *letter; ++letter) QTest::keyClick(Help()->windowHandle(), *letter);
  }
  static void Click(const char *name) {
    const auto &button = Find<QToolButton>(*Help(), name);
    QTest::mouseClick(Help()->windowHandle(), Qt::LeftButton, {},
                      button.mapTo(button.window(), button.rect().center()));
    QApplication::processEvents();
  }
  static void ShowAndActivate(QWidget &window) {
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  TestSession session;
  const QString folder;
  HelpDesk desk{*session};
  Navigator navigator;
  std::unique_ptr<OperatingSystem> system = RunningSystem();
};

TEST_F(HelpWindow, F1OpensThePageThatFits) {
  frmSetup options(*session, navigator, {}, nullptr);
  frmCalendar calendar(*session, QDate(2026, 3, 1), nullptr);
  frmSplash about(*session, *system, true, nullptr);
  QMessageBox box(QMessageBox::Question, "Sure?", "Really?", QMessageBox::Ok, &options);
  QDialog unknown;
  options.ShowTab(SetupTab::Colors);
  const std::pair<QWidget *, const char *> windows[] = {{&options, "options.html#colors"},
                                                        {&box, "options.html#colors"},
                                                        {&calendar, "keyboard.html#dates"},
                                                        {&about, "index.html"},
                                                        {&unknown, "index.html"}};
  for (const auto &[window, page] : windows) {
    ShowAndActivate(*window);
    Press(*window, Qt::Key_F1);
    EXPECT_EQ(Page(), page) << window->metaObject()->className();
    Press(Qt::Key_Escape);
    EXPECT_EQ(Help(), nullptr);
    if (window != &options) window->close();
  }
  // The button that has the focus does not matter, the tab that is shown does.
  ShowAndActivate(options);
  options.ShowTab(SetupTab::Other);
  Find<QPushButton>(options, "cmdOK").setFocus();
  Press(options, Qt::Key_F1);
  EXPECT_EQ(Page(), "options.html#other");
  Press(options, Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(Page(), "options.html#other");
}

TEST_F(HelpWindow, BackForwardHomeAndSearchByKeys) {
  desk.Show("tools");
  ASSERT_TRUE(QTest::qWaitForWindowActive(Help()));
  EXPECT_FALSE(Find<QToolButton>(*Help(), "cmdBack").isEnabled());
  Press(Qt::Key_Tab);  // to the first link
  Press(Qt::Key_Return);
  EXPECT_EQ(Page(), "35.html");
  EXPECT_EQ(Help()->windowTitle(), "Planning for your goal - Trimlog Pro Help");
  Press(Qt::Key_F, Qt::ControlModifier);
  Type("net calories");
  Press(Qt::Key_Return);
  EXPECT_EQ(Page(), "search:net calories");
  EXPECT_TRUE(Browser().toPlainText().contains("pages were found for net calories"));
  Press(Qt::Key_Tab);
  Press(Qt::Key_Return);
  EXPECT_EQ(Page(), "netcalories.html");
  Press(Qt::Key_Left, Qt::AltModifier);
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Page(), "35.html");
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Page(), "search:net calories");
  Press(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(Page(), "index.html");
  Click("cmdBack");
  EXPECT_EQ(Page(), "search:net calories");
  Press(Qt::Key_F, Qt::ControlModifier);
  Type("zebra");
  Click("cmdSearch");
  EXPECT_EQ(Page(), "search:zebra");  // typed over what stood there
  Press(Qt::Key_Escape);
  EXPECT_EQ(Help(), nullptr);
}

TEST_F(HelpWindow, IsUsableAboveDialogsAndOutlivesThem) {
  desk.Show({});
  WhenModal([this](QWidget &outer) {
    Click("cmdHome");  // the dialog came after the help
    Find<QLineEdit>(*Help(), "txtSearch").setFocus();
    Type("weight");
    Press(Qt::Key_Return);
    EXPECT_EQ(Page(), "search:weight");
    ShowAndActivate(outer);
    Press(outer, Qt::Key_F1);
    EXPECT_EQ(Page(), "keyboard.html#dates");
    EXPECT_EQ(Help()->parentWidget(), &outer);  // in front of it for every window manager
    WhenModal([](QWidget &) {
      ShowAndActivate(*Help());
      Press(Qt::Key_Left, Qt::AltModifier);
      EXPECT_EQ(Page(), "search:weight");
    });
    QMessageBox(QMessageBox::Question, "Sure?", "Really?", QMessageBox::Ok, &outer).exec();
    QApplication::processEvents();
    Click("cmdHome");
    EXPECT_EQ(Page(), "index.html");
  });
  frmCalendar(*session, QDate(2026, 3, 1), nullptr).exec();
  QApplication::processEvents();
  ASSERT_TRUE(Help());
  ShowAndActivate(*Help());
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Page(), "search:weight");
}

TEST_F(HelpWindow, OnlyTheWebGoesToTheBrowserOfTheWeb) {
  QFile page(folder + "web.html");
  ASSERT_TRUE(page.open(QIODevice::WriteOnly));
  page.write("<html><body><p><a href=\"https://www.corvane.example/a?b=1\">Web</a></p></body></html>");
  page.close();
  desk.Show("web");
  ASSERT_TRUE(QTest::qWaitForWindowActive(Help()));
  Press(Qt::Key_Tab);
  Press(Qt::Key_Return);
  EXPECT_EQ(session.machine.opened, QStringList{"https://www.corvane.example/a?b=1"});
  EXPECT_EQ(Page(), "web.html");
}

TEST_F(HelpWindow, ProgramsWithoutTheirHelpSaySo) {
  ASSERT_TRUE(QDir(folder).removeRecursively());
  session.boxes.Expect("Trimlog Pro Help", "The help file could not be found.");
  desk.Show("tools");
  EXPECT_EQ(Help(), nullptr);
}

TEST(HelpStyle, ReadsWellOnEveryDesktop) {
  for (const QColor window : {QColor(0xEF, 0xEF, 0xEF), QColor(0x35, 0x35, 0x35), QColor(0x1E, 0x1E, 0x1E),
                              QColor(Qt::black), QColor(Qt::white), QColor(0x5A, 0x5A, 0x60)}) {
    const HelpColours colours = HelpColoursOf(QPalette(window));
    for (const QColor &text : {colours.text, colours.heading, colours.link}) {
      EXPECT_GE(ContrastRatio(text, colours.page), 4.5) << window.name().toStdString();
      EXPECT_GE(ContrastRatio(text, colours.key), 4.5) << window.name().toStdString();
    }
    EXPECT_NE(colours.key, colours.page);
  }
}

}  // namespace
}  // namespace trimlog
