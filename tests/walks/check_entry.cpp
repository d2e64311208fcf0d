// The start, raw data and limits screens show what the record holds.
#include "drive/text.h"
#include "tests/walks/checks.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

// A field shows its value, unless somebody has just typed in it what was refused.
void Field(const View& view, const char* rule, const std::string& name, double value) {
  if (view.Now().focus == name || !view.page.Visible(name)) return;
  if (!BlankOrUnknown(view.page.Text(name))) view.Must(rule, name, value);
}

void Same(const View& view, const char* rule, const std::string& name, const std::string& wanted) {
  const std::string& shown = view.page.Text(name);
  if (view.page.Visible(name) && shown != wanted)
    view.Wrong(rule, name + " shows " + drive::Quoted(shown) + ", the record has " +
                         drive::Quoted(wanted));
}

void CheckRow(const View& view, const screen::Grid& table, int row) {
  const Seen& now = view.Now();
  const double value = now.C[static_cast<std::size_t>(row) + 1];
  const std::string shown = table.Cell(row, 2);
  if (!Shows(shown, value, now.SigDigits))
    view.Wrong("raw",
               "row " + Word(row + 1) + " shows " + drive::Quoted(shown) + " for " + Word(value));
  const std::string wanted = !now.DetecOn       ? "="
                             : value < now.LOQ  ? "<"
                             : value >= now.URR ? ">"
                                                : "=";
  if (table.Cell(row, 1) != wanted)
    view.Wrong("raw", "row " + Word(row + 1) + " has the operator " + table.Cell(row, 1));
}

void CheckTable(const View& view) {
  const Seen& now = view.Now();
  const auto& table = static_cast<const screen::Grid&>(view.page.Control("DBGridVkr"));
  const int rows = std::min(now.Count(), static_cast<int>(now.C.size()) - 1);
  if (table.rowCount != rows)
    view.Wrong("raw", "the table has " + Word(table.rowCount) + " rows for " + Word(rows));
  for (const int row : {0, rows / 2, rows - 1})
    if (row >= 0 && row < table.rowCount && row < rows) CheckRow(view, table, row);
}

}  // namespace

void CheckStart(const View& view) {
  const Seen& now = view.Now();
  if (now.Mode.empty() || !view.page.Visible("IdentFrame")) return;
  if (now.Count() > 0) Field(view, "start", "SampSizTxB", now.M);
  Field(view, "start", "GMTxB", now.GM);
  Field(view, "start", "GSDTxB", now.GSD);
  view.Number("start", "DegreesLbl", now.df);
  const bool looked = view.scene.step.Command() == "key" && view.scene.On("BasisForm") &&
                      now.Mode == view.scene.before.Mode;
  if (looked && now.SigDigits != view.scene.before.SigDigits)
    view.Wrong("digits", "looking at a field widens the numbers from " +
                             Word(view.scene.before.SigDigits) + " to " + Word(now.SigDigits));
}

void CheckRawData(const View& view) {
  const Seen& now = view.Now();
  CheckTable(view);
  view.Number("raw", "SampSzLbl", now.M);
  if (!view.model.Complete()) return;
  view.Number("raw", "C1Lbl", view.model.Series().front());
  view.Number("raw", "CnLbl", view.model.Series().back());
  if (!now.DetecOn) return;
  view.Number("raw", "DegreesLbl", now.NInRange);
  Field(view, "raw", "DetecLTxb", now.LOQ);
  Field(view, "raw", "DetecUTxb", now.URR);
}

void CheckLimits(const View& view) {
  const Seen& now = view.Now();
  const Page& page = view.page;
  if (now.OELV && !Blank(page.Text("VkrValTxB")) && !page.Control("VkrValTxB").touched)
    view.Must("limits", "VkrValTxB", *now.OELV);
  if (!page.Control("AlphaTxb").touched) view.Number("limits", "AlphaTxb", now.U);
  if (!page.Control("DeltaTxb").touched) view.Number("limits", "DeltaTxb", now.D);
  view.Number("limits", "SampSizTxB", now.M);
  if (!now.RefPeriod.empty() && !page.Control("RefPerCmb").touched)
    Same(view, "limits", "RefPerCmb", now.RefPeriod);
  if (!now.Duration.empty() && !page.Control("DurationCmB").touched)
    Same(view, "limits", "DurationCmB", now.Duration);
}

}  // namespace walks
