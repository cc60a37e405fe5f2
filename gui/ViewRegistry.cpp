#include "ViewRegistry.h"

#include "access/FindViews.h"
#include "access/FrmPwd.h"
#include "access/FrmSeek.h"
#include "access/FrmUser.h"
#include "access/LoginView.h"
#include "access/Search.h"
#include "access/UserView.h"
#include "admin/FrmNewMainScreen.h"
#include "admin/FrmNewScript.h"
#include "admin/FrmScriptMast.h"
#include "admin/Frmnth.h"
#include "admin/MainScreenView.h"
#include "admin/MonthView.h"
#include "admin/NewSheetView.h"
#include "admin/ScriptMastView.h"
#include "charges/ChargesSheet.h"
#include "charges/ChargesView.h"
#include "charges/DayChargesViews.h"
#include "charges/FrmCashFlow.h"
#include "charges/FrmCharges.h"
#include "charges/FrmClosing.h"
#include "frame/CaptionView.h"
#include "frame/FormBinder.h"
#include "frame/MDIForm1.h"
#include "frame/MainWindow.h"
#include "frame/ScreenMenu.h"
#include "margin/FrmCreatePon.h"
#include "margin/FrmSpan_Load.h"
#include "margin/MarginViews.h"
#include "pricing/CalcView.h"
#include "pricing/FrmCalc.h"
#include "reports/FrmPrintOption.h"
#include "reports/FrmReport.h"
#include "reports/PrintOptionView.h"
#include "reports/ReportDataView.h"
#include "scenario/FrmListGraph.h"
#include "scenario/FrmNewGraph.h"
#include "scenario/FrmNewGraphGreek.h"
#include "scenario/FrmSimulation.h"
#include "scenario/FrmTwoContract.h"
#include "scenario/ScenarioView.h"
#include "sheet/FrmSettingStrike.h"
#include "sheet/RiskSheet.h"
#include "sheet/SheetView.h"
#include "sheet/StrikeSettingView.h"
#include "tracker/FrmOption.h"
#include "tracker/FrmOption_New.h"
#include "tracker/FrmTrail.h"
#include "tracker/FrmUnderlying.h"
#include "tracker/FrmUnderlying_New.h"
#include "tracker/TradeEntryView.h"
#include "tracker/TrailView.h"
#include "upload/FrmUpload.h"
#include "upload/UploadView.h"

#include <map>
#include <string>
#include <type_traits>

namespace tallimark {

namespace {

// A view that builds itself from the model (menus, say) takes it; the others find their model
// through the binder alone.
template <class V> QWidget* make(Form& form) {
    if constexpr (std::is_constructible_v<V, Form&>)
        return new V(form);
    else
        return new V;
}

using Maker = QWidget* (*)(Form&);

// One line for each screen with a view of its own.
const std::map<std::string, Maker, std::less<>> kViews = {
    {MDIForm1::kName, make<MainWindow>},
    {FrmPwd1::kName, make<LoginView>},
    {FrmPwd::kName, make<LoginView>},
    {FrmCalc::kName, make<CalcView>},
    {FrmNewMainScreen::kName, make<MainScreenView>},
    {FrmNewScript::kName, make<NewSheetView>},
    {FrmOption::kName, make<TradeEntryView>},
    {FrmUnderlying::kName, make<TradeEntryView>},
    {FrmOption_New::kName, make<TradeEntryView>},
    {FrmUnderlying_New::kName, make<TradeEntryView>},
    {FrmSeek::kName, make<SeekView>},
    {search::kName, make<SearchView>},
    {FrmScriptMast::kName, make<ScriptMastView>},
    {Frmnth::kName, make<MonthView>},
    {FrmCharges::kName, make<ChargesView>},
    {ChargesSheet::kDayName, make<ChargesSheetView>},
    {ChargesSheet::kSheetName, make<ChargesSheetView>},
    {FrmClosing::kName, make<ClosingView>},
    {FrmCashFlow::kName, make<CashFlowView>},
    {FrmUser::kName, make<UserView>},
    {RiskSheet::kStockName, make<SheetView>},
    {RiskSheet::kIndexName, make<SheetView>},
    {FrmSettingStrike::kName, make<StrikeSettingView>},
    {FrmUpload::kStockName, make<UploadView>},
    {FrmUpload::kIndexName, make<UploadView>},
    {FrmTradeTracker::kName, make<TradeTrackerView>},
    {FrmTrail::kName, make<TrailView>},
    {FrmSimulation::kName, make<ScenarioView>},
    {FrmListGraph::kName, make<ScenarioView>},
    {FrmNewGraph::kName, make<ScenarioView>},
    {FrmNewGraphGreek::kName, make<ScenarioView>},
    {FrmTwoContract::kName, make<TwoContractView>},
    {FrmPrintOption::kName, make<PrintOptionView>},
    {FrmReport::kName, make<ReportDataView>},
    {FrmCreatePon::kName, make<CreatePonView>},
    {FrmSpan_Load::kName, make<SpanLoadView>},
};

} // namespace

View makeView(Form& form) {
    auto it = kViews.find(form.name());
    QWidget* widget = it != kViews.end() ? it->second(form) : make<CaptionView>(form);
    // The frame's menus are its own bar; every other screen's menu is held for the frame to show.
    if (!dynamic_cast<MainWindow*>(widget)) makeScreenMenu(form, *widget);
    return {widget, new FormBinder(form, *widget)};
}

} // namespace tallimark
