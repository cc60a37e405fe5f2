#pragma once
// The trade trail: FrmTradeTracker's choice of trades with OK and Cancel, and FrmTrail's list
// of a series' trades with Delete, Update and Close.
#include <QWidget>

namespace tallimark {

class TradeTrackerView : public QWidget {
public:
    TradeTrackerView();
};

class TrailView : public QWidget {
public:
    TrailView();
};

} // namespace tallimark
