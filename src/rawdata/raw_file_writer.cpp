#include "files/safe_writer.h"
#include "rawdata/raw_file.h"
#include "session/global_bas.h"

// Writing a raw data file.
namespace rawdata {

std::string FileBytes(const std::vector<double>& values) {
  std::string bytes;
  for (const double value : values) bytes += GlobalBAS::FileText(value) + "\r\n";
  return bytes;
}

bool WriteFile(const std::string& path, const std::vector<double>& values) {
  return files::WriteSafely(path, FileBytes(values));
}

}  // namespace rawdata
