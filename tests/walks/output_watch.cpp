#include "tests/walks/output_watch.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

#include "catalog/catalog.h"
#include "drive/text.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

using Names = std::vector<std::string>;

// The controls whose texts are values of the screen's record.
const std::map<std::string, Names> kValues = {
    {"DataCtrlForm", {"SampSzLbl", "C1Lbl", "CnLbl", "DegreesLbl", "DetecLTxb", "DetecUTxb"}},
    {"DescriptForm",
     {"NameTxB", "SampSizTxB", "GMTxB", "GMuTxB", "GSDTxB", "AMmlTxb", "AMuTxb", "AMmvTxb",
      "AmlinTxb", "SDUTxb", "SDlinTxb", "DegreesTxb", "DegreesLbl(11)", "DetecLTxb", "DetecUTxb",
      "DegreesLbl(5)", "DegreesLbl(9)", "DegreesLbl(6)"}},
    {"GrenzenForm",
     {"NameTxB", "SampSizTxB", "VkrValTxB", "RefPerCmb", "AlphaTxb", "DeltaTxb", "DurationCmB"}},
    {"PercExForm",
     {"NameLbl", "SampSizLbl", "DegreesLbl", "GMLbl", "GSDLbl", "VkrValLbl(1)", "PercExTxB(0)",
      "PercExTxB(1)", "DegrMinTxb", "SampMinTxB"}},
    {"UCLForm",
     {"NameLbl", "SampSizLbl", "DegreesLbl", "GMuLbl(1)", "GSDLbl(1)", "AMuTxb", "UCLTxB",
      "PercExTxB"}},
    {"TwoSampCompForm",
     {"SampSizTxB", "GMTxB", "GSDTxB", "SampSizTxB2", "GMTxB2", "GSDTxB2", "GMInfTxb", "GSDInfTxb",
      "SampSizTxb3", "GMTxb3", "GSDTxb3"}},
    {"PlotForm", {}},
};

// Of these, the results that the document of all results has, too.
const std::map<std::string, Names> kResults = {
    {"DescriptForm",
     {"GMTxB", "GMuTxB", "GSDTxB", "AMmlTxb", "AMuTxb", "AMmvTxb", "AmlinTxb", "SDUTxb",
      "SDlinTxb"}},
    {"PercExForm", {"PercExTxB(0)", "PercExTxB(1)"}},
    {"UCLForm", {"AMuTxb", "UCLTxB", "PercExTxB"}},
    {"TwoSampCompForm", {"GMInfTxb", "GSDInfTxb"}},
};

std::uintmax_t SizeOf(const std::string& path) {
  std::error_code none;
  const std::uintmax_t size = std::filesystem::file_size(path, none);
  return none ? 0 : size;
}

std::string Behind(const std::string& path, std::uintmax_t start) {
  std::ifstream in(path, std::ios::binary);
  in.seekg(static_cast<std::streamoff>(start));
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string LogOf(const std::string& name) {
  const std::size_t point = name.find('.');
  if (point != std::string::npos) return name.substr(0, point) + ".LOG";
  return std::string(drive::TrimBlanks(name)) + ".LOG";
}

// The linear moments are told of measured outcomes only.
bool Told(const Scene& scene, const std::string& control) {
  const bool linear = control == "AmlinTxb" || control == "SDlinTxb";
  return !linear || scene.before.Mode == "R";
}

// What the control shows, without the blanks about it; nothing where it is
// hidden.
std::string Plain(const View& view, const std::string& control) {
  if (!view.page.Visible(control)) return {};
  return std::string(drive::TrimBlanks(view.page.Text(control)));
}

// The document leaves out, and says why, what rests on estimates out of their ranges, and a
// comparison that was broken off at its question.
bool Evaluated(const View& view) {
  const Seen& now = view.Now();
  const bool plausible = now.GM >= 0.0001 && now.GM <= 10000 && now.GSD >= 1.001 && now.GSD <= 1000;
  return plausible && (now.form != "TwoSampCompForm" || !Plain(view, "GMInfTxb").empty());
}

bool Appends(const Scene& scene) {
  return scene.Chosen("MenuLog") ? !scene.On("PlotForm") : scene.Chosen("MenuLogFile");
}

}  // namespace

void OutputWatch::Check(const View& view) {
  const std::string log = Appends(view.scene) ? LogOf(view.scene.before.Name) : "";
  for (const auto& [path, size] : sizes_)
    if (path != log && SizeOf(path) != size) view.Wrong("log", path + " has changed unasked");
  if (!log.empty()) CheckAppended(view, log);
  const Scene& scene = view.scene;
  if (scene.Chosen("MenuPrinterPrint")) CheckPrinted(view);
  if (scene.Chosen("MenuDocument")) CheckHandedOver(view);
  const bool leaves = !log.empty() || scene.Chosen("MenuPrinterPrint") ||
                      scene.Chosen("MenuDocument") || scene.Chosen("MenuRapport") ||
                      scene.Chosen("MenuGathered") || scene.Chosen("menuPrintgrid");
  if (leaves && scene.step.boxes.empty() && !(scene.before == scene.after))
    view.Wrong("output", scene.step.Rest() + " has changed the record");
}

// A name may lose its middle on paper.
void OutputWatch::CheckPrinted(const View& view) const {
  const auto values = kValues.find(view.scene.before.form);
  if (values == kValues.end()) return;
  for (const std::string& control : values->second) {
    const std::string shown = Plain(view, control);
    if (shown.empty() || control.starts_with("Name")) continue;
    view.scene.findings.Count();
    if (std::ranges::none_of(view.scene.step.printed, [&shown](const std::string& text) {
          return text.find(shown) != std::string::npos;
        }))
      view.Wrong("printed", "the page lacks " + control + ", " + drive::Quoted(shown));
  }
}

// As a table of its own file, every number of these screens stands between two
// commas.
void OutputWatch::CheckHandedOver(const View& view) const {
  const Scene& scene = view.scene;
  if (!scene.step.asked || !scene.step.file.ends_with(".csv")) return;
  const std::string table = Behind(scene.step.file, 0);
  if (table.empty()) view.Wrong("document", "nothing was written to " + scene.step.file);
  const auto results = kResults.find(scene.before.form);
  if (results == kResults.end() || !Evaluated(view)) return;
  for (const std::string& control : results->second) {
    const std::string shown = Plain(view, control);
    if (shown.empty() || BlankOrUnknown(view.page.Text(control)) || !Told(scene, control)) continue;
    scene.findings.Count();
    if (table.find("," + shown + ",") == std::string::npos)
      view.Wrong("document", "the table lacks " + control + ", " + drive::Quoted(shown));
  }
}

// Everything that the screen shows of its record's values, and that it was
// told.
void OutputWatch::CheckAppended(const View& view, const std::string& log) {
  const std::uintmax_t before = std::exchange(sizes_[log], SizeOf(log));
  const std::string record = Behind(log, before);
  const auto& boxes = view.scene.step.boxes;
  const auto told = std::ranges::any_of(boxes, [&log](const screen::Message& box) {
    return box.text.starts_with(LoadResString(733) + log) && box.title == LoadResString(732);
  });
  if (!told || record.empty()) {
    view.Wrong("log", "nothing was appended to " + log);
    return;
  }
  for (const std::string& control : kValues.at(view.scene.before.form)) {
    if (!Told(view.scene, control) || !view.page.Visible(control) || Blank(view.page.Text(control)))
      continue;
    view.scene.findings.Count();
    if (record.find(view.page.Text(control)) == std::string::npos)
      view.Wrong("log",
                 "the record lacks " + control + ", " + drive::Quoted(view.page.Text(control)));
  }
}

}  // namespace walks
