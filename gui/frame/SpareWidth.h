#pragma once
// A grid of figures wider than its columns: the room left over goes to every column alike, so
// each figure stays beside its neighbours instead of the last one drifting to the far edge.
class QTableWidget;

namespace tallimark {

void spreadSpareWidth(QTableWidget& table);

} // namespace tallimark
