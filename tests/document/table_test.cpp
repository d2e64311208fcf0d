// The table of results, read by a reader of its own.
#include <gmock/gmock.h>

#include "tests/document/document_session.h"

namespace {

using Table = std::vector<std::vector<std::string>>;

// RFC 4180, without mercy: what its grammar lacks is a failure.
class Reader {
 public:
  explicit Reader(const std::string& text) : text_(text) {}

  Table Read() {
    Table table;
    while (at_ < text_.size()) {
      std::vector<std::string> record{Field()};
      while (at_ < text_.size() && text_[at_] == ',') {
        ++at_;
        record.push_back(Field());
      }
      EXPECT_EQ(text_.substr(at_, 2), "\r\n") << "at " << at_;
      at_ += 2;
      table.push_back(record);
    }
    return table;
  }

 private:
  std::string Field() { return at_ < text_.size() && text_[at_] == '"' ? Quoted() : Plain(); }
  std::string Plain() {
    const std::size_t end = text_.find_first_of(",\r\n\"", at_);
    const std::string field = text_.substr(at_, end - at_);
    at_ = std::min(end, text_.size());
    return field;
  }
  std::string Quoted() {
    std::string field;
    for (++at_; at_ < text_.size(); ++at_) {
      if (text_[at_] != '"') {
        field += text_[at_];
      } else if (text_.substr(at_, 2) == "\"\"") {
        field += text_[++at_];
      } else {
        ++at_;
        return field;
      }
    }
    ADD_FAILURE() << "a quote is not closed";
    return field;
  }

  const std::string& text_;
  std::size_t at_ = 0;
};

class DocumentTable : public DocumentSession {
 protected:
  Table Read() {
    const std::string text = document::Csv(Made());
    return Reader(text).Read();
  }
};

TEST_F(DocumentTable, ItHasARowAResultInTheOrderOfTheDocument) {
  OpenTwelve();
  StateLimit("5");
  const Table table = Read();
  const auto results = ResultsOf(Made());
  ASSERT_EQ(table.size(), results.size() + 1);
  EXPECT_THAT(table[0], testing::ElementsAre("Name", "Value", "Unit", "Method"));
  for (std::size_t i = 0; i < results.size(); ++i) {
    ASSERT_EQ(table[i + 1].size(), 4u);
    EXPECT_EQ(table[i + 1][1], results[i].value);
    EXPECT_EQ(table[i + 1][2], results[i].unit);
    EXPECT_EQ(table[i + 1][3], results[i].method);
  }
}

TEST_F(DocumentTable, ItSaysOfAnOutcomeWhichOneItIs) {
  OpenTwelve();
  EXPECT_THAT(Read(), testing::Contains(testing::ElementsAre("Outcome 12", "6.5", "mg/m3", "")));
}

TEST_F(DocumentTable, CommasQuotesAndLineEndsInANameStayInItsField) {
  OpenTwelve();
  const std::string name = "Weld, \"hall 2\"\r\neast";
  p.Record().Name = name;
  EXPECT_THAT(Read(), testing::Contains(testing::ElementsAre("File or name", name, "", "")));
}

TEST_F(DocumentTable, LineEndsInANameBreakNoLineOfTheText) {
  OpenTwelve();
  p.Record().Name = "weld\nhall";
  const std::string text = Text();
  EXPECT_THAT(text, testing::HasSubstr("=\r\nweld hall\r\n"));
  EXPECT_THAT(text, testing::ContainsRegex("File or name +weld hall\r\n"));
}

TEST_F(DocumentTable, TheDecimalSignIsAPoint) {
  OpenTwelve();
  EXPECT_THAT(Read(), testing::Contains(testing::ElementsAre("Outcome 1", "0.3", "mg/m3", "")));
}

TEST_F(DocumentTable, BytesThatAreNoUtf8AreReplaced) {
  OpenTwelve();
  p.Record().Name = "weld\xff\xc3.vkr";
  EXPECT_NE(document::Csv(Made()).find("weld\uFFFD\uFFFD.vkr"), std::string::npos);
  EXPECT_NE(Text().find("weld\uFFFD\uFFFD.vkr"), std::string::npos);
}

TEST_F(DocumentTable, TheTextHasEveryValueOfTheTable) {
  OpenTwelve();
  StateLimit("5");
  const std::string text = Text();
  for (const auto& record : Read())
    if (record[0] != "Value") {
      EXPECT_NE(text.find(record[1]), std::string::npos) << record[0] << " " << record[1];
    }
}

}  // namespace
