#include "core/windows/controls/theme_style.h"

#include "core/windows/controls/art.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/fields/plain_labels.h"

namespace trimlog {

void ThemeStyle::polish(QWidget *widget) {
  QProxyStyle::polish(widget);
  KeepPlain(widget);
  wheelGuard_.Guard(widget);
}

int ThemeStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returned) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon ThemeStyle::standardIcon(StandardPixmap picture, const QStyleOption *option, const QWidget *widget) const {
  // Of a menu bar that is too narrow for its menus. The desktop's own would be looked for in all its folders of
  // pictures at every start, and is hardly ever seen.
  if (picture == SP_ToolBarHorizontalExtensionButton) return ArtIcon(QStringLiteral("next"));
  return QProxyStyle::standardIcon(picture, option, widget);
}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const {
  switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
      return spacing::around;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
      return spacing::between;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

}  // namespace trimlog
