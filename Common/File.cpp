#include "Common/File.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <system_error>
#include <utility>

namespace Common {

namespace {

constexpr std::size_t largestFile = std::size_t{64} * 1024 * 1024; ///< /dev/zero never ends

/// @throws std::system_error with errno unless a system call succeeded
void Require(bool succeeded) {
    if (!succeeded) {
        throw std::system_error(errno, std::generic_category());
    }
}

/// A temporary file next to another one. It is removed unless it replaces the other.
class Replacement {
public:
    explicit Replacement(const std::filesystem::path& replaced)
        : target(replaced),
          name(replaced.parent_path() / ".qdv12-XXXXXX"),
          descriptor(mkostemp(name.data(), O_CLOEXEC)) {
        Require(descriptor >= 0);
    }
    ~Replacement() {
        close(descriptor);
        unlink(name.c_str());
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    void Write(std::string_view content) {
        while (!content.empty()) {
            const ssize_t written = write(descriptor, content.data(), content.size());
            Require(written >= 0 || errno == EINTR);
            content.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
        }
    }
    /// Those of the replaced file, or the default ones for a new file.
    void SetAccessRights() {
        struct stat existing {};
        const bool exists = stat(target.c_str(), &existing) == 0;
        const mode_t masked = umask(0);
        umask(masked);
        Require(fchmod(descriptor, exists ? existing.st_mode & 0777U : 0666U & ~masked) == 0);
    }
    void TakePlace() {
        Require(fsync(descriptor) == 0); // some file systems report a full disk only now
        Require(close(std::exchange(descriptor, -1)) == 0);
        Require(rename(name.c_str(), target.c_str()) == 0);
    }

private:
    const std::filesystem::path& target;
    std::string name;
    int descriptor;
};

} // namespace

std::string ReadFile(const std::filesystem::path& file) {
    const std::unique_ptr<std::FILE, decltype(&std::fclose)> stream(std::fopen(file.c_str(), "rb"), &std::fclose);
    Require(stream != nullptr);
    std::string content;
    std::array<char, 4096> part{};
    while (const std::size_t size = std::fread(part.data(), 1, part.size(), stream.get())) {
        content.append(part.data(), size);
        if (content.size() > largestFile) {
            throw std::system_error(EFBIG, std::generic_category());
        }
    }
    Require(std::ferror(stream.get()) == 0);
    return content;
}

void ReplaceFile(const std::filesystem::path& file, std::string_view content) {
    const auto target = std::filesystem::weakly_canonical(std::filesystem::absolute(file));
    // rename does not check the permissions of the file itself. A write-protected file must not be replaced.
    Require(access(target.c_str(), F_OK) != 0 || access(target.c_str(), W_OK) == 0);
    Replacement replacement(target);
    replacement.Write(content);
    replacement.SetAccessRights();
    replacement.TakePlace();
}

} // namespace Common
