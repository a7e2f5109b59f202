#include "journal/windows/net_calories_line.h"

#include <QHBoxLayout>

#include "core/session/session.h"
#include "journal/day/net_calories_text.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/result_text.h"

namespace trimlog {

NetCaloriesLine::NetCaloriesLine(Session &session, const QString &name, QWidget *parent)
    : QWidget(parent), text_(new ResultText(name, this)) {
  auto *line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  text_->setWordWrap(true);  // a narrow window shows all of it too
  line->addWidget(text_, 1);
  auto *pnlLearnMore =
      AddCommand(line, QStringLiteral("pnlLearnMore"), tr("&Learn More..."), tr("What net calories are."));
  connect(pnlLearnMore, &QPushButton::clicked, this,
          [&session] { session.boxes.Inform(AboutNetCaloriesTitle(), AboutNetCalories()); });
}

void NetCaloriesLine::Tell(const QString &text) {
  setVisible(!text.isEmpty());
  text_->setText(text);
}

QString NetCaloriesLine::Text() const { return text_->text(); }

}  // namespace trimlog
