#pragma once
// The look-up with incremental search: the rows of a statement in a grid, a column to search in,
// and a search text that moves to the first row whose column begins with it. It gives back every
// column of the row picked. Callers go through search_call (FindDialogs.h).
#include "frame/Form.h"
#include "frame/Store.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tallimark {

class search : public Form {
public:
    static constexpr const char* kName = "search";
    explicit search(App& app);

    // Where the picked row's columns go, in column order; it outlives the screen.
    std::shared_ptr<std::vector<std::string>> resultList = std::make_shared<std::vector<std::string>>();
    // The rows Page Up and Page Down move by: what the grid shows at once.
    int visibleRows = 10;

    // Binds the data source to the statement, reads its rows into the grid, sizes the columns
    // and offers the field names to search in, the first one chosen.
    void bind(const std::string& statement);
    // The current row, 1-based; 0 on an empty set.
    int currentRow();

    // The moves of the data source. The finds compare "left(column, L)" with a text of length L
    // and leave the cursor where it was when no row matches.
    void FindFirst(const std::string& text);
    void FindNext(const std::string& text);
    void FindPrevious(const std::string& text);

private:
    void cmdOk();
    void searchKey(Event& e);
    void moveTo(int row);
    bool matches(int row, int column, const std::string& prefix) const;
    int searchColumn() const;
    void sizeColumns();
    void find(const std::string& text, int from, int step);

    std::optional<Recordset> data1_;
    bool showingRow_ = false; // the search text shows a picked row: it is not a search
};

} // namespace tallimark
