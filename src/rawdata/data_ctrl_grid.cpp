#include <algorithm>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "files/safe_writer.h"
#include "rawdata/data_ctrl_form.h"
#include "rawdata/rows.h"
#include "session/derivation.h"
#include "session/series_text.h"

// The grid of the data control screen: its cells, and what editing them does to the series.
namespace rawdata {
namespace {

constexpr int kNumber = 0;
constexpr int kOperator = 1;
constexpr int kConcentration = 2;

}  // namespace

void CutSeries(Given& given) { given.C.resize(static_cast<std::size_t>(SeriesCount(given)) + 1); }

void DataCtrlForm::WireGrid() {
  DBGridVkr.Cell = [this](int row, int column) { return CellText(row, column); };
  DBGridVkr.Write = [this](int row, int column, const std::string& text) {
    return WriteCell(row, column, text);
  };
  DBGridVkr.AddRow = [this](const std::string& text) { return AddRow(text); };
  DBGridVkr.DeleteRows = [this](const std::vector<int>& rows) { DeleteRows(rows); };
  DBGridVkr.Paste = [this](int row, const std::string& text) { PasteRows(row, text); };
  DBGridVkr.Copy = [this](const std::vector<int>& rows) { return CopyRows(rows); };
  // The empty line behind the last row takes the new outcome.
  MenuAddRow.Click = [this] { DBGridVkr.GoTo(DBGridVkr.rowCount); };
  MenuDeleteRow.Click = [this] { DeleteRows(DBGridVkr.selectedRows); };
}

void DataCtrlForm::Rebind() {
  const int count = std::min(SampleCount(session), static_cast<int>(session.C.size()) - 1);
  DBGridVkr.rowCount = std::max(count, 0);
  DBGridVkr.text = session.Name;
  SampSzLbl.text = ShownTrimmed(session.M);
  flow.GridData.resize(static_cast<std::size_t>(DBGridVkr.rowCount));
  ++DBGridVkr.revision;
  shown_ = Outcomes();
}

std::vector<double> DataCtrlForm::Outcomes() const {
  return {session.C.begin() + 1, session.C.begin() + 1 + DBGridVkr.rowCount};
}

std::string DataCtrlForm::CellText(int row, int column) {
  if (row < 0 || row >= DBGridVkr.rowCount || column < 0 || column > 3) return "-9999";
  // A view may ask while the series is a shorter one already and its rows are still to follow.
  const std::size_t place = static_cast<std::size_t>(row) + 1;
  if (place >= session.C.size()) return "-9999";
  const double value = session.C[place];
  std::string text = session.Unit;
  if (column == kNumber) text = Shown(row + 1);
  if (column == kOperator) text = OperatorOf(value);
  if (column == kConcentration) text = Shown(value);
  flow.GridData[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = text;
  return text;
}

std::string DataCtrlForm::OperatorOf(double value) const {
  return wording::OperatorOf(session, value);
}

bool DataCtrlForm::Refuses(double value, double stands) {
  // An unfilled row reads as 0 or below: the series is incomplete, the entry no error.
  if (value <= 0 || RefusalOf(value) == 0) return false;
  const std::string now = stands > 0 ? OwnText(Own::NowStands, {GlobalBAS::FileText(stands)})
                                     : OwnText(Own::NothingStands);
  Complain(LoadResString(920), LoadResString(1530),
           OwnText(Own::AllowedRange, {"1E-10", "1E+10"}) + " " + now);
  return true;
}

bool DataCtrlForm::HasRoomFor(int rows) {
  if (rows <= kMaxSampleSize) return true;
  Complain(LoadResString(380), LoadResString(370));
  return false;
}

// The value that stands there already, in whatever notation, is no edit.
bool DataCtrlForm::WriteCell(int row, int column, const std::string& text) {
  if (column != kConcentration || row < 0 || row >= DBGridVkr.rowCount) return false;
  const double value = GlobalBAS::ReadNumber(text);
  const std::size_t place = static_cast<std::size_t>(row) + 1;
  if (Refuses(value, session.C[place])) return false;
  const std::string number = GlobalBAS::GeneralText(row + 1);
  const std::string words = value > 0
                                ? OwnText(Own::StepTyped, {GlobalBAS::FileText(value), number})
                                : OwnText(Own::StepEmptied, {number});
  if (session.C[place] != value) {
    EditRows(words, [&](Given& given) {
      CutSeries(given);
      given.C[place] = value;
    });
  }
  TellEntry(row, value, text);
  return true;
}

// What was typed is not what now stands in the row: it was no outcome, or the series was sorted.
void DataCtrlForm::TellEntry(int row, double value, const std::string& text) {
  const std::string typed = GlobalBAS::Trim(text);
  if (value <= 0) {
    if (!typed.empty()) Report({.did = Did::NoOutcome, .count = row + 1.0, .what = typed});
    return;
  }
  // A number is taken from the beginning of what was typed; what it says as a whole may differ.
  const PastedCell cell = ReadCell(typed, session.Unit);
  if (cell.kind != CellKind::Number || (cell.byComma != value && cell.byPoint != value)) {
    const std::string number = GlobalBAS::GeneralText(row + 1);
    Report({.did = Did::Said,
            .what = OwnText(Own::ReadAs, {typed, number, GlobalBAS::FileText(value)})});
    return;
  }
  const auto begin = session.C.begin() + 1;
  if (session.RawIncomplete || begin[row] == value) return;
  const auto end = begin + SampleCount(session);
  const auto now = std::find(begin, end, value) - begin + 1;
  Report({.did = Did::Sorted, .count = static_cast<double>(now), .what = ShownTrimmed(value)});
}

bool DataCtrlForm::AddRow(const std::string& text) {
  const double value = GlobalBAS::ReadNumber(text);
  if (!HasRoomFor(SampleCount(session) + 1) || Refuses(value, 0)) return false;
  EditRows(OwnText(Own::StepAdded, {GlobalBAS::FileText(value)}), [&](Given& given) {
    CutSeries(given);
    given.M += 1;
    given.C.push_back(value);
  });
  TellEntry(SampleCount(session) - 1, value, text);
  return true;
}

// The cursor goes to what has moved up into the place of the first deleted row. Where nothing may
// go, the estimates in force stay: no outcome of the series is another one.
void DataCtrlForm::DeleteRows(const std::vector<int>& selected) {
  const std::vector<int> rows = RowsToDelete(selected, SampleCount(session));
  if (rows.empty()) return CutBeyond(selected);
  const int count = static_cast<int>(rows.size());
  const std::string number = GlobalBAS::GeneralText(count == 1 ? rows.front() + 1 : count);
  DBGridVkr.GoTo(std::min(rows.front(), SampleCount(session) - count - 1));
  EditRows(OwnText(count == 1 ? Own::StepDeletedOne : Own::StepDeleted, {number}),
           [&](Given& given) {
             CutSeries(given);
             for (auto row = rows.rbegin(); row != rows.rend(); ++row)
               given.C.erase(given.C.begin() + 1 + *row);
             given.M -= count;
           });
  Report({.did = Did::Deleted, .count = static_cast<double>(count)});
}

// Of two rows none goes, but what lies beyond the sample size does. The empty line is no row.
void DataCtrlForm::CutBeyond(const std::vector<int>& selected) {
  const int count = SampleCount(session);
  const auto isRow = [count](int row) { return row >= 0 && row < count; };
  if (std::none_of(selected.begin(), selected.end(), isRow)) return;
  Edit(OwnText(Own::StepDeleted, {GlobalBAS::GeneralText(0)}), [this] {
    record.Change(CutSeries);
    Rebind();
  });
}

void DataCtrlForm::EditRows(const std::string& words, const std::function<void(Given&)>& change) {
  Edit(words, [&] {
    ChangeSeries(change);
    CommitRow();
  });
}

// With a detection range its degrees of freedom hold again behind an edit.
void DataCtrlForm::CommitRow() {
  DataCtrlStatus();
  if (!session.RawIncomplete && session.DetecOn) {
    DetectionOn();
    ShowDetection();
    record.AcceptSeries();
    StatusStrip();
  }
  Rebind();
}

void DataCtrlForm::ChangeSeries(const std::function<void(Given&)>& change) {
  std::vector<double> edited;
  const LimitComplaint complaint = record.Change([&](Given& given) {
    change(given);
    edited.assign(given.C.begin() + 1, given.C.end());
  });
  if (CompleteSeries(session)) FollowOrder(edited);
  if (!complaint.MsgText.empty()) Complain(complaint.MsgText, complaint.MsgTitle);
}

void DataCtrlForm::FollowOrder(const std::vector<double>& edited) {
  const std::vector<int> places = PlacesInOrder(edited);
  const int count = static_cast<int>(places.size());
  const auto follow = [&](int& row) {
    if (row >= 0 && row < count) row = places[static_cast<std::size_t>(row)];
  };
  follow(DBGridVkr.currentRow);
  for (int& row : DBGridVkr.selectedRows) follow(row);
  std::sort(DBGridVkr.selectedRows.begin(), DBGridVkr.selectedRows.end());
}

void DataCtrlForm::TellReading(const ReadingNotes* notes) {
  mark_ = notes ? notes->mark : std::nullopt;
  markedPath_ = session.Name;
  if (!notes) {
    Rebind();
    return;
  }
  std::string how;
  if (!notes->trailingText.empty())
    how += OwnText(Own::TrailingText, {wording::NumberList(notes->trailingText)});
  if (!notes->commaAndPoint.empty())
    how += OwnText(Own::CommaAndPoint, {wording::NumberList(notes->commaAndPoint)});
  Report({.did = Did::Read, .count = session.M, .what = how});
}

bool DataCtrlForm::VkrSave() {
  flow.MsgText = LoadResString(1320);
  flow.MsgTitle = LoadResString(1324);
  const std::string path =
      GlobalBAS::Trim(ports.fileDialog.Ask({true, LoadResString(94), OwnText(Own::SeriesFiles),
                                            SeriesName(session), "Valkowin.chm", 100260}));
  if (path.empty()) {
    ports.messageBox.Show({session.MsgText, session.MsgTitle});
    return false;
  }
  if (!MayOverwrite(path)) return false;
  std::string bytes;
  bool written = false;
  {
    const screen::Busy busy(*this);
    Refresh();
    flow.MsgTitle = LoadResString(910) + path;
    flow.MsgText.clear();
    record.Change(CutSeries);
    bytes = FileBytes({session.C.begin() + 1, session.C.end()});
    written = files::WriteSafely(path, bytes);
  }
  if (!written) {
    Report({.did = Did::NotSaved, .what = path});
    return false;
  }
  record.Change(
      [&path](Given& given) { (given.original ? given.original->Name : given.Name) = path; });
  mark_ = files::MarkOfBytes(bytes);
  markedPath_ = path;
  desk.MarkSaved(path);
  Report({.did = Did::Saved, .count = static_cast<double>(SeriesCount(session))});
  Rebind();
  return true;
}

}  // namespace rawdata
