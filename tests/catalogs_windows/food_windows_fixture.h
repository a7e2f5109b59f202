#pragma once

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "core/session/navigator.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {

/// A session on the shipped foods, and the doors that food windows use.
class FoodWindowTest : public ::testing::Test {
 protected:
  explicit FoodWindowTest(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedStates)) : session(locale) {
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
    navigator.ShowHelp = [this](const QString &topic) { helpTopics.append(topic); };
  }
  static void TypeInto(QWidget &window, const QString &name, const QString &text) {
    QLineEdit &field = Find<QLineEdit>(window, name);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, text);
    Q_EMIT field.editingFinished();
  }
  static QString TextOf(QWidget &window, const QString &name) { return Find<QLineEdit>(window, name).text(); }
  static void Click(QWidget &window, const QString &name) {
    QPushButton &button = Find<QPushButton>(window, name);
    ASSERT_TRUE(button.isEnabled()) << name.toStdString();
    button.click();
  }

  TestSession session;
  Navigator navigator;
  QStringList helpTopics;
};

}  // namespace trimlog
