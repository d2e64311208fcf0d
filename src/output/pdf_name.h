#pragma once

#include <string>
#include <vector>

namespace output {

// The name that is proposed for a PDF file of what a series shows: that of the series, with its
// folder, and with .pdf in place of its ending. Data without a name
// have print.pdf.
std::string PdfNameOf(const std::string& name);

// A file for reports beside that log. One that is there already keeps its name to itself.
std::string UnusedPdfBeside(const std::string& log);

// A path that nothing has, beside `file` and named after it: "/data/weld unsaved.vkr" for
// "/data/weld.vkr". No name is longer than file systems take.
std::string UnusedBeside(const std::string& file, const std::string& word,
                         const std::string& ending);

// Where is kept what can't stand beside its file, while nobody can be asked for a place.
std::vector<std::string> OtherFolders();

}  // namespace output
