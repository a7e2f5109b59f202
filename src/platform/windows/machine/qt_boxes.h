#pragma once

#include "platform/boxes.h"

namespace trimlog {

/// The boxes and file dialogs that a person sees, over the window in use.
class QtBoxes final : public Boxes {
 public:
  BoxButton Show(const Box &box) override;
  std::optional<QString> AskText(const QString &title, const QString &prompt, const QString &initial) override;
  QString ChooseOpenFile(const QString &title, const QStringList &filters, const QString &folder) override;
  QString ChooseSaveFile(const QString &title, const QStringList &filters, const QString &proposed) override;
  QString ChooseFolder(const QString &title, const QString &folder) override;

 private:
  QString TitleOf(const QString &title) const;
};

}  // namespace trimlog
