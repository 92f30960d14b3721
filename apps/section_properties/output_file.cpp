#include "output_file.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>

#ifdef _WIN32
#include <io.h>
#include <process.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace host {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32

int process() { return _getpid(); }

fs::path behind_links(const fs::path &file) {
  const HANDLE handle = CreateFileW(file.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return file;
  std::wstring name(32768, L'\0');  // the system's limit
  name.resize(GetFinalPathNameByHandleW(handle, name.data(), static_cast<DWORD>(name.size()), 0));
  CloseHandle(handle);
  return name.empty() ? file : fs::path(name);
}

// Nullptr if there is a file of that name already, or a link.
std::FILE *create(const fs::path &name, const fs::path & /*like*/) {
  const int descriptor =
      _wopen(name.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY, _S_IREAD | _S_IWRITE);
  return descriptor < 0 ? nullptr : _fdopen(descriptor, "wb");
}

#else

int process() { return getpid(); }

fs::path behind_links(fs::path file) {
  while (fs::is_symlink(file)) file = file.parent_path() / fs::read_symlink(file);
  return file;
}

// Nullptr if there is a file of that name already, or a link. Owner and mode are those of the other
// file, if there is one: of the owner as far as the user may give a file away.
std::FILE *create(const fs::path &name, const fs::path &like) {
  struct stat other {};
  const bool has_other = stat(like.c_str(), &other) == 0;
  const int descriptor = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                              has_other ? 0600 : 0666);
  if (descriptor < 0) return nullptr;
  if (has_other) {
    const bool has_owner = fchown(descriptor, other.st_uid, other.st_gid) == 0;
    fchmod(descriptor, other.st_mode & (has_owner ? 07777 : 0777));
  }
  return fdopen(descriptor, "wb");
}

#endif

bool replace(const fs::path &file, const fs::path &by) {
#ifdef _WIN32  // so that a file that is there keeps its access rights
  if (ReplaceFileW(file.c_str(), by.c_str(), nullptr, 0, nullptr, nullptr) != 0) return true;
#endif
  std::error_code error;
  fs::rename(by, file, error);
  return !error;
}

// A new file in the folder of the other one, under a name of this process's own.
std::FILE *create_beside(const fs::path &file, fs::path &name) {
  constexpr int most_attempts = 100;
  for (int i = 0; i < most_attempts; ++i) {
    const std::string own = std::to_string(process()) + '-' + std::to_string(i);
    name = file.parent_path() / (".section_properties-" + own + ".part");
    std::FILE *const created = create(name, file);
    if (created != nullptr || errno != EEXIST) return created;
  }
  return nullptr;
}

bool write_beside(const fs::path &file, const std::string &content) {
  fs::path unfinished;
  std::FILE *const stream = create_beside(file, unfinished);
  if (stream == nullptr) return false;
  const bool is_whole = std::fwrite(content.data(), 1, content.size(), stream) == content.size();
  if (std::fclose(stream) == 0 && is_whole && replace(file, unfinished)) return true;
  std::error_code error;
  fs::remove(unfinished, error);
  return false;
}

}  // namespace

bool write_file(const std::string &name, const std::string &content) {
  try {
    const fs::path file = fs::u8path(name);
    if (fs::exists(file) && !fs::is_regular_file(file)) return false;
    return write_beside(behind_links(file), content);
  } catch (const fs::filesystem_error &) {  // a name the system cannot take
    return false;
  }
}

}  // namespace host
