#include "weightlog/windows/calendar_footer.h"

#include <QComboBox>
#include <QHBoxLayout>

#include "core/settings/options.h"
#include "core/windows/controls/figure_field.h"
#include "core/windows/controls/theme.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"
#include "weightlog/calendar_month.h"

namespace trimlog {

namespace {

constexpr int charactersOfAFigure = 18;

}  // namespace

CalendarFooter::CalendarFooter(QWidget *parent) : QWidget(parent) {
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(spacing::between, spacing::tight, 0, spacing::tight);
  chkShowLoss = AddCheck(row, QStringLiteral("chkShowLoss"), tr("Show &Loss"));
  chkShowCalories = AddCheck(row, QStringLiteral("chkShowCalories"), tr("Show &Calories"));
  cboNutrientID = new QComboBox(this);
  cboNutrientID->setObjectName(QStringLiteral("cboNutrientID"));
  SpeakAs(cboNutrientID, tr("Figure shown below each day"));
  cboNutrientID->setToolTip(tr("What the calendar shows below each day"));
  cboNutrientID->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  cboNutrientID->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cboNutrientID->setMinimumContentsLength(charactersOfAFigure);
  row->addWidget(cboNutrientID);
  row->addStretch(1);
  lblTotal2 = AddLabel(row, QStringLiteral("lblTotal2"), tr("Month"));
  lblTotal2->setContentsMargins(spacing::between, 2, spacing::between, 2);
  txtTotalMonth = new FigureField(QStringLiteral("txtTotalMonth"), Qt::AlignCenter, this);
  txtTotalMonth->setToolTip(tr("The loss of this month"));
  row->addWidget(txtTotalMonth);
  connect(chkShowLoss, &QCheckBox::clicked, this, &CalendarFooter::LossWanted);
  connect(chkShowCalories, &QCheckBox::clicked, this, &CalendarFooter::CaloriesWanted);
  connect(cboNutrientID, &QComboBox::activated, this,
          [this](int index) { Q_EMIT FigureWanted(cboNutrientID->itemData(index).toInt()); });
}

void CalendarFooter::FillFigures(const Nutrients &nutrients) {
  cboNutrientID->clear();
  for (const OptionChoice &choice : NutrientChoices(nutrients)) cboNutrientID->addItem(choice.text, choice.value);
}

void CalendarFooter::ShowSettings(const Settings &settings) {
  chkShowLoss->setChecked(settings.ShowLoss);
  chkShowCalories->setChecked(settings.ShowCalories);
  cboNutrientID->setCurrentIndex(cboNutrientID->findData(settings.NutrientID));
}

QString CalendarFooter::ChosenFigure() const { return cboNutrientID->currentText(); }

void CalendarFooter::ShowTotal(const CalendarTotal &total, const QString &spoken, const QPalette &desktop) {
  txtTotalMonth->setAccessibleName(spoken);
  txtTotalMonth->ShowText(total.text);
  txtTotalMonth->ShowColor(total.color == calendar_colour::even
                               ? desktop.color(QPalette::WindowText)
                               : MeaningColor(ColorFromBgr(total.color), desktop.color(QPalette::Window)));
}

void CalendarFooter::ShowTotalAtAll(bool show) {
  txtTotalMonth->setVisible(show);
  lblTotal2->setVisible(show);
}

void CalendarFooter::AlignTotal(const QFont &font, int width) {
  QFont strong = font;
  strong.setWeight(QFont::DemiBold);  // as the weights are
  txtTotalMonth->UseFont(strong);
  txtTotalMonth->setFixedWidth(width);
}

void CalendarFooter::Paint(quint32 colour, const QPalette &desktop) { PaintPanel(lblTotal2, colour, desktop); }

void CalendarFooter::ShowChoices(bool show) {
  for (QWidget *control : std::initializer_list<QWidget *>{chkShowLoss, chkShowCalories, cboNutrientID}) {
    control->setVisible(show);
  }
}

}  // namespace trimlog
