#include "core/settings/window_position.h"

namespace trimlog {

namespace {

const QString storedMaximised = QStringLiteral("2");

class Geometry {
 public:
  Geometry(SettingsStore &store, bool save) : store_(store), save_(save) {}

  void Position(const char *name, int &value, int fallback) const { Exchange(name, value, fallback); }
  /// A window without extent could never be found again.
  void Extent(const char *name, int &value, int fallback) const {
    Exchange(name, value, fallback);
    if (value <= 0) value = fallback;
  }

 private:
  void Exchange(const char *name, int &value, int fallback) const {
    if (save_) {
      store_.SaveSettingLong(settingsRoot, QLatin1String(name), value);
    } else {
      value = store_.GetSettingLong(settingsRoot, QLatin1String(name), fallback);
    }
  }

  SettingsStore &store_;
  bool save_;
};

void ExchangeWindowState(Session &session, bool save) {
  const QString name = QStringLiteral("WindowState");
  if (save) {
    session.store.SaveSettingLong(settingsRoot, name, session.windows.frameWindowState);
  } else {
    session.windows.frameWindowState = session.store.GetSettingString(settingsRoot, name) == storedMaximised ? 2 : 0;
  }
}

}  // namespace

WindowPlace DefaultFramePlace(const QSize &screen) {
  WindowPlace place;
  place.Width = defaultFrameWidth;
  place.Height = defaultFrameHeight;
  place.Left = (screen.width() - place.Width) / 2;
  place.Top = (screen.height() - place.Height) / 2;
  return place;
}

WindowPlace DefaultQuickJournalPlace(const WindowPlace &frame) {
  return {frame.Left + defaultFrameWidth - defaultQuickJournalWidth,
          frame.Top + defaultFrameHeight - defaultQuickJournalHeight, defaultQuickJournalWidth,
          defaultQuickJournalHeight};
}

void WindowPosition(Session &session, bool save, WindowGroup group, const QSize &screen) {
  const SettingsBatch batch(session.store);
  const Geometry geometry(session.store, save);
  WindowPlace &frame = session.windows.framePlace;
  WindowPlace &quick = session.windows.quickJournalPlace;
  const WindowPlace quickDefault = DefaultQuickJournalPlace(frame);
  switch (group) {
    case WindowGroup::Frame: {
      geometry.Extent("Height", frame.Height, defaultFrameHeight);
      geometry.Extent("Width", frame.Width, defaultFrameWidth);
      geometry.Position("Left", frame.Left, (screen.width() - frame.Width) / 2);
      geometry.Position("Top", frame.Top, (screen.height() - frame.Height) / 2);
      ExchangeWindowState(session, save);
      break;
    }
    case WindowGroup::QuickJournalPosition:
      geometry.Position("QDLeft", quick.Left, quickDefault.Left);
      geometry.Position("QDTop", quick.Top, quickDefault.Top);
      break;
    case WindowGroup::QuickJournalSize:
      geometry.Extent("QDWidth", quick.Width, quickDefault.Width);
      geometry.Extent("QDHeight", quick.Height, quickDefault.Height);
      break;
  }
}

}  // namespace trimlog
