#pragma once
// The upload of a day's trade file into the open sheet: FrmUpload for a stock sheet, FrmUploadFut
// for an index sheet, one screen with the differences of the variant in one table (FrmUpload.cpp).
// The sheet presets symbol, description, market price and expiry; the screen reads the file,
// keeps the lines of the sheet's script, expiry and day, stores and stages them, and has the
// sheet take them. Delete undoes one day.
#include "frame/Form.h"
#include "sheet/RiskSheet.h"
#include "upload/TradeFile.h"

#include <string>

namespace tallimark {

class FrmUpload : public Form {
public:
    static constexpr const char* kStockName = "FrmUpload";
    static constexpr const char* kIndexName = "FrmUploadFut";
    static constexpr const char* kCaption = "Uploading The Data....Tallimark";
    static constexpr const char* kFileFilter = "Text (*.txt)|*.txt|All Files (*.*)|*.*";
    // Lines between two showings of the count of lines read.
    static constexpr long kProgressStep = 1000;
    // Bytes of the file read at a time.
    static constexpr size_t kReadBlock = 1 << 20;

    FrmUpload(App& app, SheetKind kind);

    void CmdUpload_Click();
    void AppendProc();
    // Bookkeeping of the day's files; UploadCheck gives true for a refusal.
    bool UploadCheck();
    void AddFilenm();
    void DeleteUpload();
    // ScrNameNow from the script code at the head of TxtSymbol.
    void TxtSymbol_LostFocus();

    std::string ScrNameNow;

private:
    RiskSheet& sheet();
    TradeLayout layout() const;
    // DTPicker1 through a date pattern.
    std::string day(const char* pattern) const;
    // The file's lines kept for the sheet: stored, staged, counted in LblLines as they are read.
    void readFile();
    void storeLine(const TradeRow& row, const TradeLine& line);
    void stageLine(const TradeRow& row, const TradeLine& line);
    void showLinesRead(long lines);

    SheetKind kind_;
};

} // namespace tallimark
