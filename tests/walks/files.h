#pragma once

#include <string>
#include <vector>

namespace walks {

// A raw file of a walk, as a user would describe it.
struct RawFile {
  std::string name;
  bool accepted = false;
  std::vector<double> values;  // in ascending order
};

// The folder of one walk, with its own copies of all files; it is the current one while it lives.
class Folder {
 public:
  // Empties the folder and fills it anew.
  explicit Folder(const std::string& path);

  const std::string& Path() const { return path_; }
  const std::vector<RawFile>& Files() const { return files_; }
  const RawFile* Find(const std::string& name) const;
  // The series was saved there.
  void Saved(const std::string& name, const std::vector<double>& values);

 private:
  void AddExamples();
  void AddRawFiles();
  void AddMade(const std::string& name, const std::vector<double>& values);
  void AddOwn();

  std::string path_;
  std::vector<RawFile> files_;
};

}  // namespace walks
