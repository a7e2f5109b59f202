#include "support/queued_boxes.h"

#include <gtest/gtest.h>

namespace trimlog {

QueuedBoxes::~QueuedBoxes() {
  for (const Expected &left : queue_) {
    ADD_FAILURE() << "A box that the test expects never came: " << left.title.toStdString() << ": "
                  << left.text.toStdString();
  }
}

void QueuedBoxes::Expect(const QString &title, const QString &text, BoxButton answer) {
  queue_.push_back({false, title, text, answer, {}});
}

void QueuedBoxes::ExpectInput(const QString &title, const std::optional<QString> &answer) {
  queue_.push_back({true, title, {}, BoxButton::Ok, answer});
}

void QueuedBoxes::CheckPlace(const QString &title) const {
  EXPECT_FALSE(changeOpen && changeOpen()) << "A box inside a change of the data file: " << title.toStdString();
}

BoxButton QueuedBoxes::Show(const Box &box) {
  CheckPlace(box.title);
  shown_.push_back(box);
  if (queue_.empty() || queue_.front().input) {
    ADD_FAILURE() << "Unexpected box: " << box.title.toStdString() << ": " << box.text.toStdString();
    return box.buttons.contains(BoxButton::Cancel) ? BoxButton::Cancel : box.buttons.last();
  }
  const Expected expected = queue_.front();
  queue_.pop_front();
  EXPECT_EQ(box.title, expected.title);
  EXPECT_TRUE(box.text.contains(expected.text)) << box.text.toStdString() << "\n  lacks\n"
                                                << expected.text.toStdString();
  EXPECT_TRUE(box.buttons.contains(expected.answer)) << "The box has no such button: " << box.title.toStdString();
  return expected.answer;
}

std::optional<QString> QueuedBoxes::TakeInput(const QString &title) {
  CheckPlace(title);
  if (queue_.empty() || !queue_.front().input) {
    ADD_FAILURE() << "Unexpected input: " << title.toStdString();
    return std::nullopt;
  }
  const Expected expected = queue_.front();
  queue_.pop_front();
  EXPECT_EQ(title, expected.title);
  return expected.typed;
}

std::optional<QString> QueuedBoxes::AskText(const QString &title, const QString &, const QString &) {
  return TakeInput(title);
}
QString QueuedBoxes::ChooseOpenFile(const QString &title, const QStringList &, const QString &) {
  return TakeInput(title).value_or(QString());
}
QString QueuedBoxes::ChooseSaveFile(const QString &title, const QStringList &, const QString &) {
  return TakeInput(title).value_or(QString());
}
QString QueuedBoxes::ChooseFolder(const QString &title, const QString &) {
  return TakeInput(title).value_or(QString());
}

}  // namespace trimlog
