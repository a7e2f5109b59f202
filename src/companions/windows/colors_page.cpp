#include "companions/windows/colors_page.h"

#include <QHBoxLayout>

#include "core/windows/controls/art.h"
#include "core/windows/controls/theme.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"

namespace trimlog {

namespace {

constexpr int pictureSide = 48;

}  // namespace

ColorsPage::ColorsPage(quint32 initial, QWidget *parent) : WizardPage(parent) {
  QVBoxLayout *layout = MakeColumn();
  AddNote(layout, QStringLiteral("lblColors"),
          QStringLiteral("Which colors would you like to see?  The arrow keys go from one to the next."));
  layout->addSpacing(spacing::between);
  auto *row = new QHBoxLayout;
  row->setSpacing(spacing::apart);
  layout->addLayout(row);
  layout->addStretch();
  auto *options = new QVBoxLayout;
  row->addLayout(options);
  for (const WizardColor &color : WizardColors()) {
    auto *option = AddOption(options, QStringLiteral("optBackColor%1").arg(color.option), color.caption);
    option->setChecked(color.colour == initial);
    optBackColor.append(option);
    connect(option, &QRadioButton::toggled, this, [this](bool checked) {
      if (checked) ShowPreview();
    });
  }
  options->addStretch();
  row->addWidget(MakePreview(), 1);
  ShowPreview();
}

QWidget *ColorsPage::MakePreview() {
  auto *panel = new QFrame(this);
  panel->setFrameShape(QFrame::StyledPanel);
  panel->setObjectName(QStringLiteral("pnlPreview"));
  panel->setAccessibleName(QStringLiteral("Preview of the color scheme"));
  pnlPreview = panel;
  auto *layout = new QVBoxLayout(panel);
  layout->setAlignment(Qt::AlignCenter);
  auto *picture = new QLabel(panel);
  picture->setPixmap(ArtIcon(QStringLiteral("calendar")).pixmap(QSize(pictureSide, pictureSide), devicePixelRatioF()));
  picture->setAlignment(Qt::AlignCenter);
  layout->addWidget(picture);
  QLabel *caption = AddNote(layout, QStringLiteral("lblPreview"), QStringLiteral("(Preview)"));
  caption->setWordWrap(false);
  caption->setAlignment(Qt::AlignCenter);
  return panel;
}

quint32 ColorsPage::Chosen() const {
  for (qsizetype i = 0; i < optBackColor.size(); ++i) {
    if (optBackColor[i]->isChecked()) return WizardColors()[i].colour;
  }
  return WizardColors().first().colour;
}

void ColorsPage::ShowPreview() {
  PaintPanel(pnlPreview, Chosen());
  Q_EMIT ColorChosen(Chosen());
}

QWidget *ColorsPage::FirstField() const {
  for (QRadioButton *option : optBackColor) {
    if (option->isChecked()) return option;
  }
  return optBackColor.first();
}

void ColorsPage::Store(WizardAnswers &answers) { answers.person.BackColor = Chosen(); }

}  // namespace trimlog
