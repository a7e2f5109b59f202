#pragma once

#include <QWidget>

#include "catalogs/food_find.h"
#include "core/session/session.h"

class QPushButton;

namespace trimlog {

class BoundGrid;
class TextField;

/// Finds a text in the descriptions of a list of foods, the first time from the top and then further on.
class FoodFindBar : public QWidget {
  Q_OBJECT
 public:
  FoodFindBar(Session &session, BoundGrid &foods, QWidget *parent);

 private:
  void OnFind();

  Session &session_;
  BoundGrid &foods_;
  FoodFinder finder_;
  TextField *txtFind;
  QPushButton *cmdFind;
};

}  // namespace trimlog
