#pragma once
// File filters as the screens write them, "Trade files (*.txt)|*.txt|All files|*.*": pairs of
// a description and its patterns, parted by "|", patterns by ";".
#include <QString>

#include <string>

namespace tallimark {

// The same filter as Qt's file dialog reads it: "Trade files (*.txt);;All files (*.*)".
QString qtFileFilter(const std::string& filter);

} // namespace tallimark
