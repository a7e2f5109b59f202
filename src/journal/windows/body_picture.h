#pragma once

#include <QWidget>
#include <optional>

#include "journal/windows/body_shape.h"

namespace trimlog {

/// picBody: a figure with a tape where the measurement being typed is taken. Drawn, so that it is sharp at any size, in
/// the desktop's colours.
class BodyPicture : public QWidget {
  Q_OBJECT
 public:
  explicit BodyPicture(QWidget *parent);

  void ShowGender(bool male);
  /// An index of measurementFields; nothing takes the tape away.
  void ShowField(std::optional<std::size_t> field);
  std::optional<std::size_t> Field() const { return field_; }
  bool IsMale() const { return male_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  bool male_ = false;
  std::optional<std::size_t> field_;
  BodyShape shape_ = MakeBodyShape(false);
};

}  // namespace trimlog
