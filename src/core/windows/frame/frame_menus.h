#pragma once

#include <QAction>
#include <QHash>
#include <QList>
#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <functional>

namespace trimlog {

/// The main window's menu tree: what stands where, under which caption and key, and what is hidden at start. What an
/// entry does stands in frame_commands.
class FrameMenus : public QObject {
  Q_OBJECT
 public:
  explicit FrameMenus(QMenuBar *bar);

  /// An entry by its name; nullptr for a name that is not in the tree. A submenu's or menu's name gives its own entry.
  QAction *Action(const QString &name) const;
  void SetVisible(const QString &name, bool visible);
  /// Enables an entry, or disables it with the reason as its tip.
  void SetAvailable(const QString &name, const QString &whyNot);
  /// Disables submenus in which nothing can be chosen. After SetAvailable of all entries.
  void CloseEmptySubmenus();
  /// Every entry that does something when chosen: neither menus nor separators.
  QStringList CommandNames() const;
  QMenu *Profiles() const { return profiles_; }

 private:
  QHash<QString, QAction *> actions_;
  QStringList commands_;
  QList<QAction *> submenus_;
  QMenu *profiles_ = nullptr;
};

}  // namespace trimlog
