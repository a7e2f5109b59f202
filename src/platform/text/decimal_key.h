#pragma once

namespace trimlog {

/// Makes the numeric keypad's decimal key type the comma where the locale expects one. One per numeric field: the
/// key-down handler calls KeyDown, the key-press handler KeyPress.
class DecimalKey {
 public:
  static constexpr int keypadDecimal = 110;  ///< the key code of the keypad's decimal key
  static constexpr int comma = 44;

  explicit DecimalKey(bool decimalComma) : decimalComma_(decimalComma) {}
  void KeyDown(int keyCode) { pending_ = decimalComma_ && keyCode == keypadDecimal; }
  /// The character to enter in place of `character`.
  int KeyPress(int character) {
    if (!decimalComma_ || !pending_) return character;
    pending_ = false;
    return comma;
  }

 private:
  bool decimalComma_;
  bool pending_ = false;
};

}  // namespace trimlog
