#pragma once

#include <string>

namespace output {

// The name that is proposed for a PDF file of what a series shows: that of the series, with its
// folder, and with .pdf in place of its ending. Data without a name
// have print.pdf.
std::string PdfNameOf(const std::string& name);

// A file for reports beside that log. One that is there already keeps its name to itself.
std::string UnusedPdfBeside(const std::string& log);

}  // namespace output
