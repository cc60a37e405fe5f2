#pragma once
// Small procedures every screen shares.
#include <string>

namespace tallimark {

class Form;
class Ui;

void BusyCursor(Ui& ui);
void NormalCursor(Ui& ui);
// Enter (13) acts as Tab: the focus moves to the next control.
void EnterAsTab(Form& form, int keyCode);
// Entering a field selects its whole text.
void SelectAll(Form& form, const std::string& field);
// The walks over every text box of a screen.
void SetLocked(Form& form, bool locked);
void SetEnabled(Form& form, bool enabled);
void ClearTextBoxes(Form& form);
// Button i of the array is enabled when character i+1 of Trim(mask) is "1". A mask longer than
// the array raises for the missing element; a shorter one leaves the rest as they were.
void SetButtonMask(Form& form, const std::string& array, const std::string& mask);

} // namespace tallimark
