#pragma once

#include <QTextBrowser>

namespace trimlog {

/// Shows help pages and, under addresses of their own, the results of searches: so back and forward lead through both.
class HelpBrowser : public QTextBrowser {
  Q_OBJECT
 public:
  HelpBrowser(const QString &folder, QWidget *parent);
  /// Where the results for what was typed are found.
  static QUrl SearchAddress(const QString &typed);

 protected:
  QVariant loadResource(int type, const QUrl &address) override;

 private:
  const QString folder_;
};

}  // namespace trimlog
