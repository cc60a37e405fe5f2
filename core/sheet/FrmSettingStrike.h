#pragma once
// The small modal dialog that asks how many strikes to add above and below the sheet's ladder.
// The sheet sets the present counts, shows it and reads Accepted and the two counts once hidden.
#include "frame/Form.h"

#include <cstdint>

namespace tallimark {

class FrmSettingStrike : public Form {
public:
    static constexpr const char* kName = "FrmSettingStrike";
    // The most strikes the ladder takes on either side of its middle, well above any real chain:
    // a count beyond is refused before anything changes, so no count can overflow.
    static constexpr long kMaxStrikesASide = 1000;
    explicit FrmSettingStrike(App& app);

    // Strikes now above and below the middle, shown in the labels.
    int16_t CurAbove = 0, CurBelow = 0;
    // Strikes to add: only a count above 0 is taken from its field.
    long NumAbove = 0, NumBelow = 0;
    bool Accepted = false;

    // What the dialog shows as it comes up (the screen is loaded on first use, before the
    // opener can set anything): the present counts in the labels, nothing accepted yet.
    void showCurrent(int16_t above, int16_t below);
    // Both entry fields must read as counts up to kMaxStrikesASide; a refused one is reset to
    // "0" and selected.
    void ValidateForm(bool& valid);

private:
    bool countOrRefuse(const std::string& field, const char* message, const char* side);
    void command1Click();
    void cancel();
};

} // namespace tallimark
