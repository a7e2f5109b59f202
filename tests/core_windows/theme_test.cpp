#include "core/windows/controls/theme.h"

#include "core/windows/controls/theme_style.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

TEST(Theme, ContrastIsTheWebGuidelinesRatio) {
  EXPECT_NEAR(ContrastRatio(Qt::black, Qt::white), 21.0, 0.001);
  EXPECT_NEAR(ContrastRatio(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);  // the well-known lightest readable grey
  EXPECT_NEAR(RelativeLuminance(QColor(255, 0, 0)), 0.2126, 0.0001);
}

TEST(Theme, TextOnEveryColourReaches) {
  for (int red = 0; red <= 255; red += 51) {
    for (int green = 0; green <= 255; green += 51) {
      for (int blue = 0; blue <= 255; blue += 51) {
        const QColor background(red, green, blue);
        EXPECT_GE(ContrastRatio(ContrastText(background), background), 4.5) << background.name().toStdString();
      }
    }
  }
}

TEST(Theme, KeptColoursAreBlueGreenRed) {
  EXPECT_EQ(ColorFromBgr(0xFFE0C0), QColor(0xC0, 0xE0, 0xFF));
  EXPECT_EQ(BgrFromColor(QColor(0xC0, 0xE0, 0xFF)), 0xFFE0C0U);
  EXPECT_EQ(ColorFromBgr(255), QColor(Qt::red));
  QPalette desktop;
  desktop.setColor(QPalette::Button, QColor(1, 2, 3));
  desktop.setColor(QPalette::ButtonText, QColor(4, 5, 6));
  EXPECT_EQ(ColorFromBgr(0x8000000F, desktop), QColor(1, 2, 3));
  EXPECT_EQ(ColorFromBgr(0x80000012, desktop), QColor(4, 5, 6));
}

TEST(Theme, MeaningKeepsItsValueOnLightAndItsHueOnDark) {
  const QColor gain = ColorFromBgr(255), loss = ColorFromBgr(32768), none = ColorFromBgr(0);
  for (const QColor &light : {QColor(Qt::white), QColor(0xC0, 0xE0, 0xFF), QColor(0xFF, 0xFF, 0xC0)}) {
    EXPECT_EQ(MeaningColor(gain, light), gain);
    EXPECT_EQ(MeaningColor(loss, light), loss);
    EXPECT_EQ(MeaningColor(none, light), none);
  }
  for (const QColor &dark : {QColor(Qt::black), QColor(0x23, 0x26, 0x29), QColor(0x2D, 0x2D, 0x2D)}) {
    for (const QColor &color : {gain, loss, none}) EXPECT_GE(ContrastRatio(MeaningColor(color, dark), dark), 4.5);
    EXPECT_LT(qAbs(MeaningColor(loss, dark).hsvHue() - loss.hsvHue()), 4);
    EXPECT_LT(MeaningColor(gain, dark).hsvHue(), 4);
  }
}

const std::vector<QPalette> &Desktops() {
  static const std::vector<QPalette> desktops = {QPalette(QColor(0xEF, 0xEF, 0xEF)), QPalette(QColor(0x35, 0x35, 0x35)),
                                                 QPalette(QColor(0x1E, 0x1E, 0x1E)), QPalette(Qt::black)};
  return desktops;
}

TEST(Theme, PanelsOfAnyColourAreReadableAndNeverGlareOnDarkDesktops) {
  for (const QPalette &desktop : Desktops()) {
    for (int red = 0; red <= 255; red += 51) {
      for (int green = 0; green <= 255; green += 51) {
        for (int blue = 0; blue <= 255; blue += 51) {
          const QColor kept(red, green, blue);
          const QColor panel = PanelColor(BgrFromColor(kept), desktop);
          EXPECT_GE(ContrastRatio(ContrastText(panel), panel), 4.5) << kept.name().toStdString();
          if (!IsDark(desktop)) {
            EXPECT_EQ(panel, kept);
            continue;
          }
          EXPECT_LE(RelativeLuminance(panel), 0.13) << kept.name().toStdString();
          const bool coloured = panel.saturation() > 60;
          EXPECT_TRUE(!coloured || qAbs(panel.hslHue() - kept.hslHue()) <= 6) << kept.name().toStdString();
        }
      }
    }
  }
}

TEST(Theme, APanelFollowsTheDesktopAndPaper) {
  const QPalette before = QApplication::palette();
  const QPalette &light = Desktops()[0], &dark = Desktops()[1];
  QApplication::setPalette(light);
  QWidget window;
  auto *panel = new QWidget(&window);
  auto *label = new QLabel("Name", panel);
  const auto colour = [label](QPalette::ColorRole role) { return label->palette().color(role); };
  for (const quint32 kept : {0xFFE0C0U, 0x400000U}) {
    PaintPanel(panel, kept);
    EXPECT_EQ(colour(QPalette::Window), ColorFromBgr(kept));
    EXPECT_EQ(colour(QPalette::WindowText), ContrastText(ColorFromBgr(kept)));
    EXPECT_EQ(colour(QPalette::Base), light.color(QPalette::Base));
  }
  PaintPanel(panel, 0xFFE0C0);
  QApplication::setPalette(dark);
  QApplication::processEvents();
  EXPECT_EQ(colour(QPalette::Window), PanelColor(0xFFE0C0, dark));
  EXPECT_EQ(colour(QPalette::WindowText), QColor(Qt::white));
  RepaintPanels(&window, light);
  EXPECT_EQ(colour(QPalette::Window), QColor(0xC0, 0xE0, 0xFF));
  QApplication::setPalette(before);
}

TEST(Theme, ButtonsOfDialogsShowNoPictures) {
  ThemeStyle style("Fusion");
  QDialogButtonBox buttons;
  buttons.setStyle(&style);
  buttons.setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
  for (const QAbstractButton *button : buttons.buttons()) EXPECT_TRUE(button->icon().isNull());
}

// The application's style meets every widget, the tool tip's too, which Qt makes by itself.
TEST(Theme, ShowsNamesAsTheyStandInLabelsAndToolTips) {
  QApplication::setStyle(new ThemeStyle);
  const auto asBefore = qScopeGuard([] { QApplication::setStyle("Fusion"); });
  const QString name = "<b>Ann</b>";
  QLabel label(name);
  label.show();
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  QLabel markup(name);
  markup.setTextFormat(Qt::RichText);
  markup.show();
  EXPECT_EQ(markup.textFormat(), Qt::RichText) << "a label may ask for a format of its own";

  label.setToolTip(name);
  QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), label.mapToGlobal(QPoint(1, 1)));
  QApplication::sendEvent(&label, &help);
  const QLabel *tip = nullptr;
  for (QWidget *window : QApplication::topLevelWidgets()) {
    if (window->inherits("QTipLabel")) tip = qobject_cast<QLabel *>(window);
  }
  ASSERT_NE(tip, nullptr);
  EXPECT_EQ(tip->text(), name);
  EXPECT_EQ(tip->textFormat(), Qt::PlainText);
  QToolTip::hideText();
}

TEST(Theme, TheWheelLeavesABoxAloneThatIsScrolledPast) {
  QApplication::setStyle(new ThemeStyle);
  const auto asBefore = qScopeGuard([] { QApplication::setStyle("Fusion"); });
  QComboBox box;
  box.show();
  EXPECT_EQ(box.focusPolicy(), Qt::StrongFocus) << "the wheel would focus it";
}

}  // namespace
}  // namespace trimlog
