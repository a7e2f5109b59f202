#pragma once

#include <QLineEdit>
#include <QLocale>
#include <optional>

namespace trimlog {

/// The decimal key of the keypad types the decimal sign of the locale, whatever the keyboard's layout gives. True when
/// the key was that one and its sign has been typed.
bool TypeDecimalKey(QLineEdit &field, const QKeyEvent &event, const QLocale &locale);

/// A field for a number in the person's locale. What is typed stays as typed; Number() reads it. The field asks nobody
/// and shows no box: its window reads Complaint() where the rule is the common one, and checks for itself where it has
/// its own words.
class NumberField : public QLineEdit {
  Q_OBJECT
 public:
  /// `label` is what a screen reader says.
  NumberField(const QString &objectName, const QString &label, const QLocale &locale, QWidget *parent = nullptr);

  /// The typed number; nothing when the field is empty or holds no number.
  std::optional<double> Number() const;
  /// As the formulas read a field: 0 for an empty one or one that holds no number.
  double ValueOrZero() const;
  /// Shows a number by a display pattern, in the locale's form.
  void SetNumber(double value, const QString &pattern = QStringLiteral("General Number"));
  void SetRange(double lowest, double highest);
  /// Why the text is no acceptable number: a sentence, or "" when it is one or the field is empty.
  QString Complaint() const;
  void SetLocale(const QLocale &locale) { locale_ = locale; }

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  QLocale locale_;
  std::optional<double> lowest_;
  std::optional<double> highest_;
};

}  // namespace trimlog
