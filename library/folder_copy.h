// Whole folders copied: all of them, or none.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "core/host.h"
#include "disk/file_io.h"

namespace tricklet {

/// What becomes of the names of the files in a folder that is copied.
enum class FileNames : std::uint8_t {
  Kept,
  /// "001.TXT" becomes "001.txt", under which a library has its board; unless the folder holds that
  /// file as well.
  OfBoards,
};

/// Folders on their way into one folder. They are copied into a hidden folder there first, and
/// put in their places when all is complete, so that nothing is ever left half-copied.
///
/// Files and folders are copied, with their times of change and read-only marks. Links inside a
/// folder and special files are not, and what cannot be seen is a failure of the whole.
class FolderCopy {
 public:
  /// `into` is an absolute path; it is made when it is missing.
  FolderCopy(Host& host, std::filesystem::path into);

  /// The folder `from` will be `name` in `into`. Where that exists, its files stay but for those of
  /// the same names, which are replaced.
  void Add(const std::filesystem::path& from, const std::string& name,
           FileNames names = FileNames::Kept);

  /// Copies; the copy outlasts a power cut then. False when the person cancelled; throws `Fault` on
  /// a failure. In both cases what was copied goes to the recycle bin and `into` is as it was.
  bool Run();

  /// Links and special files that were not copied.
  int LeftOut() const { return leftOut_; }

 private:
  struct File {
    std::filesystem::path from;
    std::filesystem::path to;
  };
  /// Paths inside are relative to the folder; a folder comes before what it holds.
  struct Item {
    std::filesystem::path from;
    std::string name;
    FileNames names = FileNames::Kept;
    std::vector<std::filesystem::path> folders;
    std::vector<File> files;
    bool exists = false;  ///< `into` already has a folder of the name
  };
  /// What was put somewhere, and where it goes when the copy is undone.
  struct Placed {
    std::filesystem::path at;
    std::filesystem::path back;
  };

  std::filesystem::path Target(const Item& item) const;
  std::filesystem::path Staged(const Item& item) const;
  bool Step(const Item& item);
  bool List(Item& item);
  bool ListFolder(Item& item, const std::filesystem::path& relative, int depth);
  static void NameAsBoards(std::vector<File>& files);
  void TakeEntry(Item& item, const std::filesystem::directory_entry& entry,
                 const std::filesystem::path& relative, std::vector<std::filesystem::path>& inner);
  void CheckTarget(Item& item) const;
  void MakeFolder(const std::filesystem::path& folder);
  void MakeStaging();
  bool Stage(const Item& item);
  bool StageFile(const Item& item, const File& file);
  void PutInPlace();
  void Merge(const Item& item);
  void KeepReplaced(const std::filesystem::path& file);
  void Put(const std::filesystem::path& from, const std::filesystem::path& to);
  void Undo();
  void PutBack();

  Host& host_;
  UnflushedFolders unflushed_;
  std::filesystem::path into_;
  std::filesystem::path staging_;                 // empty until it has been made
  std::vector<std::filesystem::path> madeAbove_;  // `into` and what was missing above it
  std::vector<Item> items_;
  std::vector<Placed> placed_;
  std::vector<std::filesystem::path> madeInside_;  // in folders that existed before
  int replaced_ = 0;
  int done_ = 0;
  int total_ = 0;
  int leftOut_ = 0;
};

/// Both are folders, and the same one, by whatever path or link; equal paths need not exist. Throws
/// `Fault` when that cannot be seen, as the two below do.
bool SameFolder(const std::filesystem::path& a, const std::filesystem::path& b);
/// `inner` is the folder `outer` or lies in it, by whatever path or link. It need not exist.
bool FolderLiesIn(const std::filesystem::path& inner, const std::filesystem::path& outer);
/// One of the folders is the other or lies in it.
bool FoldersOverlap(const std::filesystem::path& a, const std::filesystem::path& b);

}  // namespace tricklet
