#include "catalogs/windows/alphabet_bar.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace trimlog {

AlphabetBar::AlphabetBar(QWidget *parent) : QWidget(parent) {
  auto *layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(1);
  for (int i = 0; i < 26; ++i) {
    const QChar letter(QLatin1Char('A').unicode() + i);
    auto *button = new QToolButton(this);
    button->setObjectName(QStringLiteral("pshAplha(%1)").arg(i));
    button->setText(letter);
    button->setAccessibleName(QStringLiteral("Foods beginning with %1").arg(letter));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    // All letters fit wherever the list does.
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    button->setMinimumWidth(button->fontMetrics().horizontalAdvance(QLatin1Char('W')) + 2);
    layout->addWidget(button, 1);
    connect(button, &QToolButton::clicked, this, [this, letter] { Q_EMIT LetterChosen(letter); });
  }
}

}  // namespace trimlog
