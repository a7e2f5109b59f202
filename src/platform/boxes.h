#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace trimlog {

enum class BoxIcon { None, Critical, Question, Warning, Information };
enum class BoxButton { Ok, Cancel, Yes, No };

/// A message box. An empty title means the program's own title.
struct Box {
  QString title;
  QString text;
  BoxIcon icon = BoxIcon::None;
  QList<BoxButton> buttons = {BoxButton::Ok};
  BoxButton defaultButton = BoxButton::Ok;  ///< ignored when not among the buttons: then the first one
  std::function<void()> help = nullptr;     ///< when set, the box has a Help button that calls it and stays open
};

/// The one door to message boxes, input boxes and file dialogs. A test answers it from a queue.
class Boxes {
 public:
  virtual ~Boxes() = default;
  QString programTitle = {};  ///< what an empty title means
  /// Nobody is there to answer, because the machine ends the program: nothing is shown, and every box and dialog counts
  /// as closed without a button.
  bool silent = false;
  virtual BoxButton Show(const Box &box) = 0;
  /// A line of text, or nothing when cancelled.
  virtual std::optional<QString> AskText(const QString &title, const QString &prompt, const QString &initial) = 0;
  /// Filters as {"Sound Files (*.wav)", "All Files (*)"}. An empty result means cancelled.
  virtual QString ChooseOpenFile(const QString &title, const QStringList &filters, const QString &folder) = 0;
  virtual QString ChooseSaveFile(const QString &title, const QStringList &filters, const QString &proposed) = 0;
  virtual QString ChooseFolder(const QString &title, const QString &folder) = 0;

  void Critical(const QString &title, const QString &text) { Show({title, text, BoxIcon::Critical}); }
  void Inform(const QString &title, const QString &text) { Show({title, text, BoxIcon::Information}); }
  void Warn(const QString &title, const QString &text) { Show({title, text, BoxIcon::Warning}); }
  void Plain(const QString &title, const QString &text) { Show({title, text, BoxIcon::None}); }
  /// A question with Yes and No; true for Yes.
  bool Ask(const QString &title, const QString &text, BoxButton defaultButton = BoxButton::Yes) {
    return Show({title, text, BoxIcon::Question, {BoxButton::Yes, BoxButton::No}, defaultButton}) == BoxButton::Yes;
  }
};

}  // namespace trimlog
