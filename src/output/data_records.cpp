// The records of the screens on which the data are entered: raw data, descriptive, limits.
#include "catalog/catalog.h"
#include "output/screen_records.h"

namespace output {
namespace {

void WriteRange(FormRecord& record, const ExposureSession& s) {
  record.Line(record.Caption("DetecChB"));
  record.Within("FrmDetec");
  const int unit = 105;
  record.Row("DegreesLbl(0)", "DegreesLbl");
  record.RowWithText("DetcLbl(0)", "DetecLTxb", unit, s.Unit);
  record.RowWithText("DetcLbl(1)", "DetecUTxb", unit, s.Unit);
}

// The rows as the grid shows them, an unfilled one too.
void WriteOutcomes(FormRecord& record) {
  const auto& grid = static_cast<const screen::Grid&>(*record.Form().Find("DBGridVkr"));
  RecordLines& lines = record.Lines();
  lines.Add(LoadResString(1520)).At(14, LoadResString(1525)).At(25, LoadResString(1530));
  lines.At(50, LoadResString(1535)).EndLine();
  record.Blank();
  for (int row = 0; row < grid.rowCount; ++row) {
    lines.At(10, grid.Cell(row, 0)).At(20, grid.Cell(row, 1)).At(25, grid.Cell(row, 2));
    lines.At(50, grid.Cell(row, 3)).EndLine();
  }
}

void WriteIdentification(FormRecord& record, const Occasion& occasion) {
  RecordLines& lines = record.Lines();
  const std::string size = record.Caption("SampSizLbl");
  if (occasion.report) {
    record.Heading("IdentFrame");
    lines.At(60, DateWords(occasion.now)).EndLine();
    record.Line(record.Caption("NameLbl") + "    " + record.Value("NameTxB"));
    lines.Add(size).At(60, record.Value("SampSizTxB") + "   " + record.Caption("RefDurLbl"));
    lines.EndLine();
    return;
  }
  record.Heading("IdentFrame", occasion.now);
  record.RowWithText("NameLbl", "NameTxB", 73, record.Value("DimLbl(0)"));
  record.RowWithText("SampSizLbl", "SampSizTxB", 85, record.Caption("RefDurLbl"));
}

void WriteDetection(FormRecord& record, const ExposureSession& s) {
  const int unit = 85;
  record.Blank();
  record.Heading("DetecFrame");
  record.Row("DegreesLbl(7)", "DegreesTxb");
  record.Row("DegreesLbl(10)", "DegreesLbl(11)");
  record.RowWithText("DetcLbl(0)", "DetecLTxb", unit, s.Unit);
  record.RowWithText("DetcLbl(1)", "DetecUTxb", unit, s.Unit);
  record.Blank();
  record.Row("DegreesLbl(4)", "DegreesLbl(5)");
  record.Row("DegreesLbl(8)", "DegreesLbl(9)");
  record.Row("DegreesLbl(3)", "DegreesLbl(6)");
}

}  // namespace

void WriteDataControl(FormRecord& record, const ExposureSession& s, const Occasion& occasion) {
  constexpr int kTitle = 1500;
  const int unit = 105;
  RecordLines& lines = record.Lines();
  lines.At(60, DateWords(occasion.now)).EndLine();
  lines.Add(LoadResString(kTitle)).At(60, "").At(85, "").EndLine();
  record.Blank();
  if (!s.RawIncomplete) {
    record.Heading("RangeFrame");
    record.Row("SampSzLbl(0)", "SampSzLbl");
    record.RowWithText("C1Lbl(0)", "C1Lbl", unit, s.Unit);
    record.RowWithText("CnLbl(0)", "CnLbl", unit, s.Unit);
  }
  record.Blank();
  if (s.DetecOn) WriteRange(record, s);
  WriteOutcomes(record);
}

void WriteDescriptive(FormRecord& record, const ExposureSession& s, const Occasion& occasion) {
  const bool raw = s.Mode == DataMode::Raw;
  auto withUnit = [&](const char* caption, const char* value) {
    record.RowWithText(caption, value, 85, s.Unit);
  };
  WriteIdentification(record, occasion);
  record.Blank();
  record.Heading("DescriptFrame");
  withUnit("GMLbl", "GMTxB");
  withUnit("GMuLbl", "GMuTxB");
  record.Row("GSDLbl", "GSDTxB");
  record.Blank();
  record.Heading("ArithmFrm");
  withUnit("AMmlLbl", "AMmlTxb");
  withUnit("AMuLbl", "AMuTxb");
  withUnit("AMmvLbl", "AMmvTxb");
  if (raw) withUnit("AMlinLbl", "AmlinTxb");
  record.Blank();
  record.Heading("SDFrm");
  withUnit("SDULbl", "SDUTxb");
  if (raw) withUnit("SDlinLbl", "SDlinTxb");
  if (s.DetecOn) WriteDetection(record, s);
}

void WriteLimits(FormRecord& record, const ExposureSession&, const Occasion& occasion) {
  constexpr int kTitle = 2098;
  constexpr int kUnit = 105;
  auto beside = [&record](const char* caption, const char* value) {
    return record.Caption(caption) + " " + record.Value(value);
  };
  record.Lines().Add(PlainCaption(LoadResString(kTitle))).At(80, DateWords(occasion.now)).EndLine();
  if (record.Shown("BoodschFrame")) record.Line(record.Caption("BoodschLbl"));
  record.Heading("IdentFrame");
  record.RowWithText("NameLbl", "NameTxB", kUnit, beside("DimLbl(0)", "DimCbo"));
  record.RowWithText("SampSizLbl", "SampSizTxB", kUnit, beside("DurationLbl", "DurationCmB"));
  record.Blank();
  record.Heading("EnvirFrame");
  record.Row("VkrValLbl(0)", "VkrValTxB", "DimLbl(2)");
  record.Row("VkrValLbl(1)", "RefPerCmb");
  record.Blank();
  record.Heading("AlphaFrame");
  record.RowWithText("AlphaLbl(0)", "AlphaTxb", kUnit, "%");
  record.RowWithText("AlphaLbl(1)", "DeltaTxb", kUnit, "%");
}

}  // namespace output
