#pragma once

#include <QUrl>
#include <QWidget>
#include <functional>

class QLineEdit;
class QTextBrowser;
class QToolButton;

namespace trimlog {

/// The help window: pages with links, back and forward, and a search over all of them. It stands beside the other
/// windows and stays usable while a dialog is open: for that time it belongs to the dialog.
class frmHelp : public QWidget {
  Q_OBJECT
 public:
  /// `folder` holds the pages; `OpenWebPage` takes the addresses that lead out of them.
  frmHelp(const QString &folder, const std::function<void(const QString &address)> &OpenWebPage);
  /// Shows a page and brings the window to the front.
  void Open(const QUrl &page);

 protected:
  bool event(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  void AddCommands();
  QToolButton *AddCommand(const char *name, const QString &caption, const char *picture, const QKeySequence &keys);
  void PlaceBeside(const QWidget *other);
  void BelongTo(QWidget *dialog);
  void StayUsable();
  void Follow(const QUrl &link);
  void Search();
  void ShowStyle();

  const QString folder_;
  const std::function<void(const QString &address)> OpenWebPage_;
  QLineEdit *txtSearch;
  QTextBrowser *brwPage;
};

}  // namespace trimlog
