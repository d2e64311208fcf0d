#pragma once

#include <string>
#include <string_view>

// Lines of text with tab columns, as the log and the reports hold them.
namespace output {

// Columns count characters from 1 on. Lines end in CR LF.
class RecordLines {
 public:
  // `text` from that column on; on the next line when the column has been passed already. A line
  // end within the text ends the line.
  RecordLines& At(int column, std::string_view text);
  // `text` behind what the line holds.
  RecordLines& Add(std::string_view text);
  void EndLine();

  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  int next_ = 1;  // column of the next character
};

// A caption as a record holds it: without the marks of access keys and without the line ends that
// it ends with.
std::string PlainCaption(std::string_view caption);

}  // namespace output
