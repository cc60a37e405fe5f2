// Every screen of the system by name, for the main frame's menus and the batch driver.
#include "frame/Screens.h"

#include "access/FrmPwd.h"
#include "access/FrmSeek.h"
#include "access/FrmUser.h"
#include "access/Search.h"
#include "admin/FrmNewMainScreen.h"
#include "admin/FrmNewScript.h"
#include "admin/FrmScriptMast.h"
#include "admin/Frmnth.h"
#include "charges/ChargesSheet.h"
#include "charges/FrmCashFlow.h"
#include "charges/FrmCharges.h"
#include "charges/FrmClosing.h"
#include "frame/Form.h"
#include "frame/MDIForm1.h"
#include "margin/FrmCreatePon.h"
#include "margin/FrmSpan_Load.h"
#include "pricing/FrmCalc.h"
#include "reports/FrmPrintOption.h"
#include "reports/FrmReport.h"
#include "scenario/FrmListGraph.h"
#include "scenario/FrmNewGraph.h"
#include "scenario/FrmNewGraphGreek.h"
#include "scenario/FrmSimulation.h"
#include "scenario/FrmTwoContract.h"
#include "sheet/FrmSettingStrike.h"
#include "sheet/RiskSheet.h"
#include "tracker/FrmOption.h"
#include "tracker/FrmOption_New.h"
#include "tracker/FrmTrail.h"
#include "tracker/FrmUnderlying.h"
#include "tracker/FrmUnderlying_New.h"
#include "upload/FrmUpload.h"

#include <functional>
#include <utility>

namespace tallimark {

namespace {
using Maker = std::function<std::unique_ptr<Form>(App&)>;

template <class F> std::pair<const char*, Maker> entry() {
    return {F::kName, [](App& app) { return std::make_unique<F>(app); }};
}

const std::vector<std::pair<const char*, Maker>>& registry() {
    static const std::vector<std::pair<const char*, Maker>> all = {
        entry<MDIForm1>(),
        entry<FrmPwd1>(),
        entry<FrmPwd>(),
        entry<FrmCalc>(),
        entry<FrmSettingStrike>(),
        {RiskSheet::kStockName, [](App& app) { return std::make_unique<RiskSheet>(app, SheetKind::Stock); }},
        {RiskSheet::kIndexName, [](App& app) { return std::make_unique<RiskSheet>(app, SheetKind::Index); }},
        entry<FrmOption>(),
        entry<FrmUnderlying>(),
        entry<FrmOption_New>(),
        entry<FrmUnderlying_New>(),
        entry<FrmNewMainScreen>(),
        entry<FrmNewScript>(),
        entry<FrmClosing>(),
        entry<FrmCashFlow>(),
        entry<FrmSpan_Load>(),
        entry<FrmCreatePon>(),
        entry<FrmTwoContract>(),
        {ChargesSheet::kDayName,
         [](App& app) { return std::make_unique<ChargesSheet>(app, ChargesEdition::Day); }},
        {ChargesSheet::kSheetName,
         [](App& app) { return std::make_unique<ChargesSheet>(app, ChargesEdition::Sheet); }},
        entry<FrmTradeTracker>(),
        entry<FrmTrail>(),
        {FrmUpload::kStockName, [](App& app) { return std::make_unique<FrmUpload>(app, SheetKind::Stock); }},
        {FrmUpload::kIndexName, [](App& app) { return std::make_unique<FrmUpload>(app, SheetKind::Index); }},
        entry<FrmSimulation>(),
        entry<FrmListGraph>(),
        entry<FrmNewGraph>(),
        entry<FrmNewGraphGreek>(),
        entry<FrmPrintOption>(),
        entry<FrmReport>(),
        entry<FrmScriptMast>(),
        entry<Frmnth>(),
        entry<FrmCharges>(),
        entry<FrmUser>(),
        entry<FrmSeek>(),
        entry<search>(),
    };
    return all;
}
} // namespace

std::unique_ptr<Form> makeScreen(App& app, const std::string& name) {
    for (const auto& [n, make] : registry())
        if (name == n) return make(app);
    return nullptr;
}

std::vector<std::string> screenNames() {
    std::vector<std::string> names;
    for (const auto& [n, make] : registry())
        names.push_back(n);
    return names;
}

} // namespace tallimark
