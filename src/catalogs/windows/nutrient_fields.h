#pragma once

#include <QMap>
#include <QWidget>

#include "core/session/session.h"
#include "journal/food_values.h"

namespace trimlog {

class NumberField;

/// The 35 nutrients of a food in groups, named by NutrientID: txtAddRec0(1) to txtAddRec0(35). As many groups side by
/// side as the screen has room for.
class NutrientFields : public QWidget {
  Q_OBJECT
 public:
  /// `room` is the width that the groups may take.
  NutrientFields(const Session &session, int room, QWidget *parent);

  NumberField &Of(int nutrientID) const { return *fields_[nutrientID]; }
  QString TextOf(int nutrientID) const;
  void SetText(int nutrientID, const QString &text);
  void Show(const FoodValues &values);
  FoodValues Typed() const;
  /// The first field, as Tab goes, that holds no acceptable number.
  NumberField *FirstWrong() const;

 private:
  QWidget *MakeGroup(const QString &title, const QList<int> &nutrientIDs);
  void AddField(int nutrientID, QWidget *group);
  void Arrange(const QList<QWidget *> &groups, int room);

  const Session &session_;
  QMap<int, NumberField *> fields_;
};

}  // namespace trimlog
