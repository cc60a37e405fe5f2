#include "admin/Frmnth.h"

namespace tallimark {

Frmnth::Frmnth(App& app) : Form(app, kName, "Month Master Detail") {
    Grid& va1 = addGrid("va1", 0);
    on("Form", EventType::Load, [this, &va1](Event&) {
        va1.setMaxCols(3);
        const std::pair<const char*, double> columns[] = {{"Month", 12}, {"Stock", 5}, {"Future", 5}};
        for (int c = 1; c <= 3; ++c) {
            va1.column(c).heading = columns[c - 1].first;
            va1.column(c).width = columns[c - 1].second;
        }
        markChanged("va1");
    });
}

} // namespace tallimark
