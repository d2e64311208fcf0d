#include <QFile>

#include <algorithm>

#include "drive/failure.h"
#include "drive/player.h"
#include "drive/text.h"

// What the program has written.
namespace drive {
namespace {

std::string BytesOf(const std::string& path) {
  QFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::ReadOnly)) throw Failure("there is no file " + path + " to be read");
  return file.readAll().toStdString();
}

// The line, from 1 on, with its end.
std::string LineAt(const std::string& bytes, std::size_t number) {
  std::size_t begin = 0;
  for (std::size_t i = 1; i < number; ++i) begin = bytes.find('\n', begin) + 1;
  return bytes.substr(begin, bytes.find('\n', begin) + 1 - begin);
}

void ExpectFile(Play&, std::string rest) {
  const std::vector<std::string> paths = Words(rest);
  if (paths.size() != 2) throw Failure("expect-file wants a file and what it should hold");
  const std::string bytes = BytesOf(paths[0]);
  const std::string wanted = BytesOf(paths[1]);
  const auto differs = std::ranges::mismatch(bytes, wanted);
  if (differs.in1 == bytes.end() && differs.in2 == wanted.end()) return;
  const auto line = static_cast<std::size_t>(std::count(bytes.begin(), differs.in1, '\n')) + 1;
  throw Failure(paths[0] + " line " + IntText(static_cast<int>(line)) + " is " +
                Quoted(LineAt(bytes, line)) + ", expected " + Quoted(LineAt(wanted, line)));
}

void ExpectNoFile(Play&, std::string rest) {
  const std::string path = TextArgument(rest);
  if (QFile::exists(QString::fromStdString(path))) throw Failure("there is a file " + path);
}

}  // namespace

const CommandTable& FileCommands() {
  static const CommandTable table = {{"expect-file", ExpectFile}, {"expect-no-file", ExpectNoFile}};
  return table;
}

}  // namespace drive
