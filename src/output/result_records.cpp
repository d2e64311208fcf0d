// The records of the screens with results: tests, mean, comparison.
#include "catalog/catalog.h"
#include "output/screen_records.h"

namespace output {
namespace {

// Captions of frames, as a label shows them: a double & stands for one.
void WriteTitle(FormRecord& record, int row) {
  if (row != 0) record.Line(PlainCaption(LoadResString(row)));
  record.Line(record.Caption("IntroLbl"));
  record.Blank();
}

// The row of the catalogue that heads the result on show; 0 before there is one.
int TitleOf(Extrapolation tag) {
  switch (tag) {
    case Extrapolation::Leidel:
      return 2501;
    case Extrapolation::Wilks:
      return 2601;
    case Extrapolation::En689:
      return 2701;
    case Extrapolation::Jahr:
      return 2430;
    case Extrapolation::Land:
      return 2431;
    default:
      return 0;
  }
}

void WriteSampleSize(FormRecord& record) {
  record.Line(record.Caption("SampSizeCkb"));
  record.Within("SampsizeFrm");
  record.Row("DegrMinLbl", "DegrMinTxb");
  record.Row("PercExLbl(3)", "PercExTxB(3)");
  record.Row("SampMinLbl", "SampMinTxB");
  record.Blank();
}

void WritePooled(FormRecord& record) {
  record.Heading("PooledFrm");
  record.Row("SampSizLbl3", "SampSizTxb3");
  record.Row("GMLbl3", "GMTxb3", "DimLbl3");
  record.Row("GSDLbl3", "GSDTxb3");
  record.Blank();
}

}  // namespace

void WriteTests(FormRecord& record, const ExposureSession& s, const Occasion& occasion) {
  WriteTitle(record, TitleOf(s.TestTag));
  record.Heading("Frame2", occasion.now);
  record.Line(record.Value("NameLbl"));
  record.Row("SampSizLbl(0)", "SampSizLbl");
  record.Row("DegreesLbl(0)", "DegreesLbl");
  record.Row("GMLbl(0)", "GMLbl", "DimLbl(0)");
  record.Row("GSDLbl(0)", "GSDLbl");
  record.Blank();
  record.Heading("UTLFrm");
  record.Row("VkrValLbl(0)", "VkrValLbl(1)");
  record.Row("PercExLbl(0)", "PercExTxB(0)", "DimLbl(2)");
  record.Row("PercExLbl(1)", "PercExTxB(1)", "DimLbl(3)");
  if (s.TestTag == Extrapolation::En689) record.Row("PercExLbl(2)", "PercExTxB(2)", "DimLbl(4)");
  record.Line(record.Caption("CommentLbl"));
  record.Blank();
  const bool ticked = record.Form().Find("SampSizeCkb")->ticked;
  if (ticked && !occasion.report) WriteSampleSize(record);
}

void WriteMean(FormRecord& record, const ExposureSession& s, const Occasion& occasion) {
  WriteTitle(record, TitleOf(s.TestTag));
  record.Heading("Frame2");
  record.Line(record.Value("NameLbl"));
  record.Row("SampSizLbl(0)", "SampSizLbl");
  record.Row("DegreesLbl(0)", "DegreesLbl");
  record.Row("GMuLbl(0)", "GMuLbl(1)", "DimLbl(0)");
  record.Row("GSDLbl(0)", "GSDLbl(1)");
  record.Row("AMuLbl", "AMuTxb", "DimLbl(1)");
  record.Blank();
  record.Heading("UCLmeanFrm");
  record.Line(record.Caption("Methodlbl"));
  record.Row("VkrValLbl(0)", "VkrValLbl");
  record.Row("UCLLbl", "UCLTxB", "DimLbl(2)");
  record.RowWithText("PercExLbl(0)", "PercExTxB", 85, "  %");
  record.Heading("ConclFrm");
  if (!occasion.report) record.Blank();
}

void WriteComparison(FormRecord& record, const ExposureSession& s, const Occasion&) {
  constexpr int kHeading = 2800;
  constexpr int kUnitOfSize = 100;
  WriteTitle(record, kHeading);
  record.Heading("HuidigFrame");
  record.RowWithText("SampSizLbl", "SampSizTxB", kUnitOfSize, record.Caption("RefDurLbl"));
  record.Row("GMLbl", "GMTxB", "DimLbl");
  record.Row("GSDLbl", "GSDTxB");
  record.Blank();
  record.Heading("DescrSecond");
  record.Row("SampSizLbl2", "SampSizTxB2");
  record.Row("GMLbl2", "GMTxB2", "DimLbl2");
  record.Row("GSDLbl2", "GSDTxB2");
  record.Blank();
  record.Heading("DescrInfFrm");
  record.RowWithText("GMinferLbl", "GMInfTxb", 105, "%");
  record.RowWithText("GSDinferLbl", "GSDInfTxb", 105, "%");
  record.Blank();
  if (s.CompareMode == ReferenceKind::Sample) WritePooled(record);
}

}  // namespace output
