#include <variant>

#include "catalog/document_texts.h"
#include "document/plain_text.h"

namespace document {
namespace {

std::string Field(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string field = "\"";
  for (const char c : text) field += c == '"' ? std::string("\"\"") : std::string(1, c);
  return field + "\"";
}

std::string Line(const Result& result) {
  return Field(result.name) + "," + Field(result.value) + "," + Field(result.unit) + "," +
         Field(result.method) + "\r\n";
}

// An outcome is named by its place alone.
struct Named {
  std::vector<Result> operator()(const Outcomes& outcomes) const {
    std::vector<Result> results = outcomes.results;
    for (Result& result : results) result.name = DocText(Doc::OutcomeName, {result.name});
    return results;
  }
  std::vector<Result> operator()(const Picture&) const { return {}; }
  std::vector<Result> operator()(const auto& block) const { return block.results; }
};

}  // namespace

std::string Csv(const Contents& contents) {
  std::string text = Line({DocText(Doc::ColumnName), DocText(Doc::ColumnValue),
                           DocText(Doc::ColumnUnit), DocText(Doc::ColumnMethod)});
  for (const Section& section : contents.sections)
    for (const Block& block : section.blocks)
      for (const Result& result : std::visit(Named{}, block)) text += Line(result);
  return AsUtf8(text);
}

}  // namespace document
