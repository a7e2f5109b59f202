#pragma once

#include <QColor>
#include <QWidget>
#include <array>

#include "tools/caloric_needs.h"

class QLabel;
class QRadioButton;

namespace trimlog {

class Session;

/// The three activity levels side by side, each as a coloured cell as high as its share of calories. One of them can be
/// chosen, by its option, its cell or its description, and then stands out in its own colour.
class ActivityChart : public QWidget {
  Q_OBJECT
 public:
  explicit ActivityChart(const Session &session, QWidget *parent = nullptr);

  void ShowAmounts(const std::array<QString, activityLevels> &amounts);
  /// -1 while none is chosen.
  int Chosen() const;

 Q_SIGNALS:
  void ChoiceMade();

 protected:
  bool event(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void PlaceHighlight();

  const Session &session_;
  std::array<QRadioButton *, activityLevels> optBMRActivity_{};
  std::array<QLabel *, activityLevels> pnlBMRActivity_{};
  std::array<QLabel *, activityLevels> pnlBMRActivityDesc_{};
  class HighlightFrame *shpBMRActivity_ = nullptr;  ///< around the column
  class HighlightFrame *shpCell_ = nullptr;         ///< around its cell
};

}  // namespace trimlog
