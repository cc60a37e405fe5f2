#pragma once
// The print preview of a report run: the desk looks at the pages and prints from there.
class QWidget;

namespace tallimark {

struct ReportDocument;

// Opens the preview without blocking; the dialog keeps its own copy of the pages.
void showReportPreview(const ReportDocument& doc, QWidget* parent);

} // namespace tallimark
