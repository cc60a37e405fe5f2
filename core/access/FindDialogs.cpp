#include "access/FindDialogs.h"

#include "access/FrmSeek.h"
#include "access/Search.h"
#include "frame/App.h"

namespace tallimark {

std::string SeekValue(App& app, const std::string& caption, const std::string& statement) {
    FrmSeek& seek = app.screens().get<FrmSeek>();
    const auto result = seek.seekResult;
    seek.seekCaption = caption;
    seek.setStatement(statement);
    seek.showModal();
    // Esc unloads the dialog itself; a pick only hides it, and the caller unloads it.
    if (app.screens().find(FrmSeek::kName) == &seek) app.screens().unload(FrmSeek::kName);
    return *result;
}

std::vector<std::string> search_call(App& app, const std::string& statement) {
    search& dialog = app.screens().get<search>();
    const auto list = std::make_shared<std::vector<std::string>>();
    dialog.resultList = list;
    dialog.bind(statement);
    dialog.showModal();
    // Ok, Esc and an empty set unload the dialog; a dialog closed otherwise goes as well.
    if (app.screens().find(search::kName) == &dialog) app.screens().unload(search::kName);
    return *list;
}

} // namespace tallimark
