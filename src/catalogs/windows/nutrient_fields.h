#pragma once

#include <QMap>
#include <QWidget>

#include "core/session/session.h"
#include "journal/food_values.h"

class QLabel;
class QScrollArea;

namespace trimlog {

class NumberField;

/// What the fields of the nutrients are for.
struct NutrientFieldsKind {
  const char *name;                                             ///< of the control array
  int count;                                                    ///< nutrients from 1 to this one have a field
  double (*highest)(int nutrientID, const QString &fieldName);  ///< what a field takes
};
/// The 35 amounts of a food: txtAddRec0(1) to txtAddRec0(35).
const NutrientFieldsKind &FoodNutrientFields();
/// The 34 targets of a day: txtTarget(1) to txtTarget(34).
const NutrientFieldsKind &TargetNutrientFields();

/// Nutrients in groups, each field named by its NutrientID. As many groups side by side as the screen has room for.
class NutrientFields : public QWidget {
  Q_OBJECT
 public:
  /// `room` is the width that the groups may take.
  NutrientFields(const Session &session, const NutrientFieldsKind &kind, int room, QWidget *parent);

  /// The names that the person gave custom nutrients have changed.
  void NutrientsChanged();
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
  const NutrientFieldsKind &kind_;
  QMap<int, NumberField *> fields_;
  QMap<int, QLabel *> captions_;
};

/// The fields in an area that scrolls where `room` is too small for them.
QScrollArea *ScrolledNutrients(const Session &session, const NutrientFieldsKind &kind, const QSize &room,
                               QWidget *parent, NutrientFields **fields);

}  // namespace trimlog
