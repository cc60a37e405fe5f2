#pragma once
// Draws a laid-out report with Qt's painter: onto a PDF file for batch, onto the printer of the
// window's print preview. Everything about the figures was settled in the core; this only paints.
#include <string>

class QPagedPaintDevice;

namespace tallimark {

struct ReportDocument;

namespace render {

// Sets the device to A4 in the document's orientation with its margins and paints every page.
void paintReport(const ReportDocument& doc, QPagedPaintDevice& device);
// Writes the document as a PDF file; raises std::runtime_error when the file cannot be written.
void writeReportPdf(const ReportDocument& doc, const std::string& path);

} // namespace render
} // namespace tallimark
