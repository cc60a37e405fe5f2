#pragma once
// What the main screen hands to the two-contract comparison (FrmTwoContract): the two ticked
// sheets, then the fill of the comparison from their saved heads.
#include "frame/Form.h"

#include <string>

namespace tallimark {

class TwoContractScreen : public Form {
public:
    using Form::Form;

    // List text, "Description" and "Refresh Date" of the two ticked rows of the main list.
    std::string Symbol1, Descr1, RefreshDt1;
    std::string Symbol2, Descr2, RefreshDt2;

    // Fills the comparison from PortfolioMast for both sheets.
    virtual void DoInit() = 0;
};

} // namespace tallimark
