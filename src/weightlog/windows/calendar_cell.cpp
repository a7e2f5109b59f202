#include "weightlog/windows/calendar_cell.h"

#include <QMouseEvent>
#include <QPainter>

#include "core/windows/controls/fitting_font.h"
#include "core/windows/controls/theme.h"
#include "platform/windows/controls/member_name.h"

namespace trimlog {

namespace {

constexpr int pad = 5;
constexpr int fieldPad = 2;
constexpr double smallShare = 0.85;
constexpr double weightShare = 1.1;
constexpr double growthShare = 0.6;  ///< of the room that a larger cell gives; the rest stays air
constexpr double largestGrowth = 3;
constexpr int fieldMargins = 6;  ///< what a line edit keeps free at its ends

QPalette CellPalette(const QPalette &desktop, const QColor &background, const QColor &text, const QColor &field) {
  QPalette palette;
  palette.setColor(QPalette::Window, background);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Base, field);
  palette.setColor(QPalette::Text, ContrastText(field) == ContrastText(desktop.color(QPalette::Base))
                                       ? desktop.color(QPalette::Text)
                                       : ContrastText(field));
  palette.setColor(QPalette::Disabled, QPalette::Base, field);
  palette.setColor(QPalette::Disabled, QPalette::Text, text);
  return palette;
}

QColor Between(const QColor &one, const QColor &other, double share) {
  const auto mix = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
  return QColor(mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue()));
}

}  // namespace

CalendarLook::CalendarLook(const QPalette &desktop, quint32 BackColor) : backColor(BackColor) {
  const QColor base = desktop.color(QPalette::Base);
  const QColor text = desktop.color(QPalette::Text);
  const QColor face = desktop.color(QPalette::Button);
  const QColor own = PanelColor(BackColor, desktop);
  day = CellPalette(desktop, base, text, base);
  neighbour = CellPalette(desktop, face, Between(desktop.color(QPalette::ButtonText), face, 0.4), face);
  active = CellPalette(desktop, own, ContrastText(own), base);
  line = Between(base, text, 0.22);
  accent = desktop.color(QPalette::Highlight);
}

const QPalette &CalendarLook::PaletteOf(const CalendarCell &cell) const {
  if (cell.background == calendar_colour::buttonFace) return neighbour;
  return cell.background == calendar_colour::white ? day : active;
}

CalendarFonts::CalendarFonts(const QFont &base, const QSize &cell) {
  const QSize least = LeastCell(base);
  const double room =
      std::min(static_cast<double>(cell.height()) / least.height(), static_cast<double>(cell.width()) / least.width());
  *this = Grown(base, std::clamp(1 + (room - 1) * growthShare, 1.0, largestGrowth));
}

CalendarFonts CalendarFonts::Grown(const QFont &base, double growth) {
  const double size = QFontInfo(base).pointSizeF();
  // Whole steps, so that dragging the frame's edge does not set 168 fonts at every pixel.
  const auto step = [](double points) { return std::round(points * 2) / 2; };
  CalendarFonts fonts;
  fonts.small = fonts.weight = base;
  fonts.small.setPointSizeF(step(size * smallShare * std::pow(growth, 0.8)));
  fonts.weight.setPointSizeF(step(size * weightShare * growth));
  fonts.weight.setWeight(QFont::DemiBold);
  return fonts;
}

QSize CalendarFonts::LeastCell(const QFont &base) {
  // With the very fonts of the smallest cells: a font of its own would cost every start a millisecond.
  const CalendarFonts least = Grown(base, 1);
  const QFontMetrics small(least.small);
  const QFontMetrics weight(least.weight);
  const int width = std::max(small.horizontalAdvance(QStringLiteral("-2888 Cal")),
                             weight.horizontalAdvance(QStringLiteral("888.88")));
  return {width + 2 * (pad + 2), 2 * small.height() + weight.height() + 2};
}

CalendarCellView::CalendarCellView(int i, QWidget *parent)
    : QWidget(parent),
      txtData(new QLineEdit(this)),
      txtLoss(new FitLabel(MemberName("txtLoss", i), Qt::AlignRight | Qt::AlignVCenter, this)),
      txtCalories(new FitLabel(MemberName("txtCalories", i), Qt::AlignCenter, this)),
      txtDateGrid(new FitLabel(MemberName("txtDateGrid", i), Qt::AlignLeft | Qt::AlignVCenter, this)),
      txtDateGridValue(new FitLabel(MemberName("txtDateGridValue", i), Qt::AlignLeft, this)) {
  setObjectName(MemberName("lblGrid", i));
  txtData->setObjectName(MemberName("txtData", i));
  txtData->setFrame(false);
  txtData->setAlignment(Qt::AlignCenter);
  txtDateGridValue->hide();
  connect(txtData, &QLineEdit::textChanged, this, &CalendarCellView::FitWeight);
}

void CalendarCellView::ShowDay(const CalendarCell &cell, const CalendarLook &look, const QString &spokenDay,
                               bool today) {
  const QPalette &wanted = look.PaletteOf(cell);
  if (palette().color(QPalette::Window) != wanted.color(QPalette::Window) ||
      palette().color(QPalette::Base) != wanted.color(QPalette::Base)) {
    setPalette(wanted);
  }
  txtDateGrid->ShowText(cell.day);
  txtDateGridValue->ShowText(cell.dateValue);
  if (txtData->accessibleName() != spokenDay) txtData->setAccessibleName(spokenDay);
  if (cell.enabled) txtData->setEnabled(true);
  if (today_ != today || line_ != look.line || accent_ != look.accent) {
    today_ = today;
    line_ = look.line;
    accent_ = look.accent;
    txtDateGrid->UseFont(DayFont());
    update();
  }
  if (cell.visible) setVisible(true);
}

void CalendarCellView::Close(const CalendarCell &cell) {
  txtData->setEnabled(cell.enabled);
  setVisible(cell.visible);
}

void CalendarCellView::ShowTexts(const CalendarCell &cell, const CalendarLook &look, const QString &spokenDetails,
                                 bool keepText) {
  const QPalette &wanted = look.PaletteOf(cell);
  if (!keepText && txtData->text() != cell.data) txtData->setText(cell.data);
  if (txtData->accessibleDescription() != spokenDetails) txtData->setAccessibleDescription(spokenDetails);
  txtLoss->ShowText(cell.loss);
  if (!cell.loss.isEmpty())
    txtLoss->ShowColor(cell.lossColor == calendar_colour::even
                           ? wanted.color(QPalette::WindowText)
                           : MeaningColor(ColorFromBgr(cell.lossColor), wanted.color(QPalette::Window)));
  txtLoss->setVisible(cell.lossVisible);
  txtCalories->ShowText(cell.calories);
  txtCalories->setToolTip(cell.caloriesTip);
  txtCalories->setVisible(cell.caloriesVisible);
}

QFont CalendarCellView::DayFont() const {
  QFont font = small_;
  font.setBold(today_);
  return font;
}

void CalendarCellView::SetFonts(const CalendarFonts &fonts) {
  small_ = fonts.small;
  weight_ = fonts.weight;
  FitWeight();
  txtLoss->UseFont(fonts.small);
  txtCalories->UseFont(fonts.small);
  txtDateGrid->UseFont(DayFont());
  Arrange();
}

void CalendarCellView::Arrange() {
  const int line = QFontMetrics(small_).height();
  const int field = QFontMetrics(weight_).height() + 2;
  const int inner = width() - 2 * pad - 1;
  const int room = height() - 2 * line - field;
  const int gap = std::clamp(room / 4, 0, 2 * pad);
  const int dayWidth = QFontMetrics(small_).horizontalAdvance(QStringLiteral("30")) + 2 * pad;
  txtDateGrid->setGeometry(pad, gap, dayWidth, line);
  txtLoss->setGeometry(pad + dayWidth, gap, inner - dayWidth, line);
  txtCalories->setGeometry(pad, height() - line - gap - 1, inner, line);
  txtData->setGeometry(fieldPad, line + gap + std::max(0, (room - 2 * gap) / 2), width() - 2 * fieldPad - 1, field);
}

// A weight of four digits and two decimals is drawn smaller rather than cut. Measured once the cell has its place.
void CalendarCellView::FitWeight() {
  const QFont fitting = isVisible() ? FittingFont(weight_, txtData->text(), txtData->width() - fieldMargins) : weight_;
  if (txtData->font() != fitting) txtData->setFont(fitting);
}

void CalendarCellView::resizeEvent(QResizeEvent *) {
  Arrange();
  FitWeight();
}

void CalendarCellView::showEvent(QShowEvent *) { FitWeight(); }

void CalendarCellView::mousePressEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton && txtData->isEnabled()) txtData->setFocus(Qt::MouseFocusReason);
}

void CalendarCellView::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  painter.setPen(line_);
  painter.drawLine(0, height() - 1, width() - 1, height() - 1);
  painter.drawLine(width() - 1, 0, width() - 1, height() - 1);
  if (today_) painter.fillRect(0, 0, width() - 1, 3, accent_);
}

}  // namespace trimlog
