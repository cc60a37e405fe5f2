#pragma once
// The span request: the static parameter part the margin calculator needs beside a position file
// (currencies, account types, the clearing house's performance-bond rates and the scan-point and
// delta-point tables of the scanning method). Every figure is a fixed literal; only the date and
// the file name change from run to run.
#include "frame/VbDate.h"

#include <filesystem>
#include <string>

namespace tallimark {

class App;

std::string SpanRequestDocument(const VbDate& today);
// The folder the request goes to: "Span Files" in the store's folder. It is not made here: a
// missing folder fails as the desk's fixed folder did.
std::filesystem::path SpanRequestFolder(App& app);
// Writes "span" + ddmm + ".spn" there, replacing a file of that name without a question.
void WriteSpanRequest(App& app);

} // namespace tallimark
