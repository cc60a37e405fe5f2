#pragma once
// The charge master: the desk's standing rates, in effect one row of Charges. They become the
// defaults of the day's charges sheet and of the closing entry.
#include "frame/RecordScreen.h"

#include <optional>

namespace tallimark {

class FrmCharges : public RecordScreen {
public:
    static constexpr const char* kName = "FrmCharges";
    explicit FrmCharges(App& app);

    void Reset();
    void FindRecords();

protected:
    void onButton(int index) override;

private:
    // A rate as the statements take it: CDbl of the field, written as a number.
    std::string rate(const char* field) const;
    bool insertRates();
    bool updateRates();
    bool deleteRates();
    void refreshSource();

    std::optional<Recordset> adoCharges_;
};

} // namespace tallimark
