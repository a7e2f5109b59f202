#include "core/windows/setup/setup_charts_page.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include "core/settings/options.h"
#include "core/windows/controls/choice_combo.h"
#include "core/windows/controls/colour_combo.h"
#include "platform/windows/controls/member_name.h"
#include "platform/windows/controls/named_controls.h"

namespace trimlog {

namespace {

constexpr int bodyTypesInARow = 4;

QString OfChart(const char *control, size_t chart) { return MemberName(control, static_cast<int>(chart) + 1); }

QLabel *Heading(const QString &text, QWidget *parent) {
  auto *heading = new QLabel(text, parent);
  heading->setTextFormat(Qt::PlainText);
  heading->setWordWrap(true);
  heading->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
  MakeBold(heading);
  return heading;
}

QCheckBox *AddCell(QGridLayout *grid, int row, size_t chart, const char *name, const QString &caption) {
  auto *check = new QCheckBox(caption);
  check->setObjectName(OfChart(name, chart));
  check->setAccessibleName(caption + QStringLiteral(", ") + ChartNames().at(static_cast<qsizetype>(chart)));
  grid->addWidget(check, row, static_cast<int>(chart) + 1);
  return check;
}

}  // namespace

SetupChartsPage::SetupChartsPage(QWidget *parent) : SetupPage(parent) {
  auto *layout = new QVBoxLayout(this);
  auto *grid = new QGridLayout;
  layout->addLayout(grid);
  AddRowLabels(grid);
  for (size_t chart = 0; chart < charts_.size(); ++chart) AddColumn(grid, chart);
  // The charts are gone through one after the other, not row by row.
  QWidget *previous = nullptr;
  for (const ChartColumn &column : charts_) {
    for (QWidget *control :
         {static_cast<QWidget *>(column.chkShowGridlines), static_cast<QWidget *>(column.chkShowDataLabels),
          static_cast<QWidget *>(column.chkPlotPoints), static_cast<QWidget *>(column.cboLineWidth),
          static_cast<QWidget *>(column.cboLineColor), static_cast<QWidget *>(column.cboPointColor)}) {
      if (previous) setTabOrder(previous, control);
      previous = control;
    }
  }
  layout->addWidget(MakeBodyTypes());
  layout->addStretch();
}

void SetupChartsPage::AddRowLabels(QGridLayout *grid) {
  grid->addWidget(new QLabel(QStringLiteral("Line width"), this), 4, 0);
  grid->addWidget(new QLabel(QStringLiteral("Line color"), this), 5, 0);
  grid->addWidget(new QLabel(QStringLiteral("Point color"), this), 6, 0);
}

void SetupChartsPage::AddColumn(QGridLayout *grid, size_t chart) {
  const QString chartName = ChartNames().at(static_cast<qsizetype>(chart));
  const int place = static_cast<int>(chart) + 1;
  grid->addWidget(Heading(chartName, this), 0, place);
  ChartColumn &column = charts_[chart];
  column.chkShowGridlines = AddCell(grid, 1, chart, "chkShowGridlines", QStringLiteral("Gridlines"));
  column.chkShowDataLabels = AddCell(grid, 2, chart, "chkShowDataLabels", QStringLiteral("Data labels"));
  column.chkPlotPoints = AddCell(grid, 3, chart, "chkPlotPoints", QStringLiteral("Plot points"));
  column.cboLineWidth =
      new ChoiceCombo(OfChart("cboLineWidth", chart), QStringLiteral("Line width, ") + chartName, this);
  column.cboLineWidth->SetChoices(LineWidths());
  column.cboLineColor =
      new ColourCombo(OfChart("cboLineColor", chart), QStringLiteral("Line color, ") + chartName, ChartColours(), this);
  column.cboPointColor = new ColourCombo(OfChart("cboPointColor", chart), QStringLiteral("Point color, ") + chartName,
                                         ChartColours(), this);
  SpeakAs(column.cboLineWidth, QStringLiteral("Line width, ") + chartName);
  SpeakAs(column.cboLineColor, QStringLiteral("Line color, ") + chartName);
  SpeakAs(column.cboPointColor, QStringLiteral("Point color, ") + chartName);
  grid->addWidget(column.cboLineWidth, 4, place);
  grid->addWidget(column.cboLineColor, 5, place);
  grid->addWidget(column.cboPointColor, 6, place);
  grid->setColumnStretch(place, 1);
}

QWidget *SetupChartsPage::MakeBodyTypes() {
  auto *group = new QGroupBox(QStringLiteral("Body measurement shown first"), this);
  auto *layout = new QGridLayout(group);
  optBodyType = new QButtonGroup(this);
  for (const OptionChoice &type : BodyTypes()) {
    auto *option = new QRadioButton(type.text, group);
    option->setObjectName(MemberName("optBodyType", type.value - 1));
    optBodyType->addButton(option, type.value);
    layout->addWidget(option, (type.value - 1) / bodyTypesInARow, (type.value - 1) % bodyTypesInARow);
  }
  return group;
}

void SetupChartsPage::Load(const Settings &settings) {
  for (size_t chart = 0; chart < charts_.size(); ++chart) {
    const ChartColumn &column = charts_[chart];
    column.chkShowGridlines->setChecked(settings.ShowGridlines[chart]);
    column.chkShowDataLabels->setChecked(settings.ShowDataLabels[chart]);
    column.chkPlotPoints->setChecked(settings.PlotPoints[chart]);
    column.cboLineWidth->SetValue(settings.LineWidth[chart]);
    column.cboLineColor->SetColour(static_cast<quint32>(settings.LineColor[chart]));
    column.cboPointColor->SetColour(static_cast<quint32>(settings.PointColor[chart]));
  }
  if (QAbstractButton *chosen = optBodyType->button(settings.BodyMeasDefault)) chosen->setChecked(true);
}

void SetupChartsPage::Store(Settings &edited) {
  for (size_t chart = 0; chart < charts_.size(); ++chart) {
    const ChartColumn &column = charts_[chart];
    edited.ShowGridlines[chart] = column.chkShowGridlines->isChecked();
    edited.ShowDataLabels[chart] = column.chkShowDataLabels->isChecked();
    edited.PlotPoints[chart] = column.chkPlotPoints->isChecked();
    edited.LineWidth[chart] = column.cboLineWidth->ChosenValue();
    edited.LineColor[chart] = static_cast<int>(column.cboLineColor->Colour());
    edited.PointColor[chart] = static_cast<int>(column.cboPointColor->Colour());
  }
  edited.BodyMeasDefault = optBodyType->checkedId();
}

}  // namespace trimlog
