#pragma once
// A grid of figures wider than its columns: the room left over goes to every column alike, so
// each figure stays beside its neighbours instead of the last one drifting to the far edge.
// Widened to its columns, the table asks for room for all of them, so that a screen sized to its
// contents opens with every column whole.
class QTableWidget;

namespace tallimark {

enum class Widen { No, ToColumns };

void spreadSpareWidth(QTableWidget& table, Widen widen = Widen::No);

} // namespace tallimark
