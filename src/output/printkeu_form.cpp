#include "output/printkeu_form.h"

#include <algorithm>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "session/global_bas.h"

namespace output {
namespace {

constexpr char kUsual[] = "Arial";
constexpr char kStartSize[] = "12";
constexpr double kTwipsPerCm = 10 * kTwipsPerMm;
constexpr double kMargin = 2 * kTwipsPerCm;

std::string Centimetres(double twips) {
  return GlobalBAS::FormatNumber(twips / kTwipsPerCm, "0.00");
}

}  // namespace

PrintkeuForm::PrintkeuForm(Printing& printing, screen::Ports& formPorts)
    : Form("frmPrintkeu", formPorts), printing_(printing) {
  Menuclose.Click = [this] {
    if (close) close();
  };
  CmbFonts.Click = TxbCorps.Change = [this] { TakeFont(); };
  TxbBrief.Change = [this] { BerekenOpnieuw(); };
  CmdAfdrukken.Click = [this] { CmdAfdrukken_Click(); };
}

void PrintkeuForm::Load() {
  caption = OwnText(Own::PrintkeuTitle);
  LblFonts.text = OwnText(Own::PrintkeuFont);
  LblCorps.text = OwnText(Own::PrintkeuSize);
  LblBrief.text = OwnText(Own::PrintkeuSample);
  Menuclose.text = OwnText(Own::PrintkeuClose);
  CmdAfdrukken.text = OwnText(Own::PrintkeuPrint);
  TxbCorps.text = kStartSize;
  TxbBrief.text = OwnText(Own::PrintkeuText);
}

void PrintkeuForm::Activate() {
  CmbFonts.items = ports.printer.Fonts();
  const bool known = std::ranges::find(CmbFonts.items, CmbFonts.text) != CmbFonts.items.end();
  const bool usual = std::ranges::find(CmbFonts.items, kUsual) != CmbFonts.items.end();
  if (!known) CmbFonts.text = usual ? kUsual : CmbFonts.items.empty() ? "" : CmbFonts.items.front();
  TakeFont();
  SetFocus(CmbFonts);
}

// A size that is empty, or none, leaves the one before.
void PrintkeuForm::TakeFont() {
  constexpr double kLargest = 400;
  const double before = TxbBrief.font ? TxbBrief.font->points : GlobalBAS::ReadNumber(kStartSize);
  const double typed = GlobalBAS::ReadNumber(TxbCorps.text);
  TxbBrief.font = {CmbFonts.text, typed >= 1 && typed <= kLargest ? typed : before};
  BerekenOpnieuw();
}

drawing::TextStyle PrintkeuForm::Style() const {
  return {.size = TxbBrief.font->points, .family = TxbBrief.font->family};
}

void PrintkeuForm::BerekenOpnieuw() {
  const screen::Extent paper = ports.printer.Paper();
  const screen::Extent line = ports.printer.TextExtent(TxbBrief.text, Style());
  LblInfo.text = OwnText(Own::PrintkeuPaper) + Centimetres(paper.width) + " cm  x " +
                 Centimetres(paper.height) + "cm\r" + OwnText(Own::PrintkeuLine) +
                 Centimetres(line.width) + " cm x " + Centimetres(line.height) + " cm";
}

void PrintkeuForm::CmdAfdrukken_Click() {
  const drawing::TextStyle style = Style();
  printing_.Print(caption, [&](screen::Extent paper) {
    drawing::DrawingRecord page(paper.width, paper.height);
    page.Text({kMargin, kMargin}, TxbBrief.text, style, "TxbBrief");
    return std::vector<drawing::DrawingRecord>{page};
  });
  BerekenOpnieuw();
}

}  // namespace output
