#include "Host/OutputFile.h"

#include "Common/File.h"
#include "Host/Errors.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <system_error>

namespace Host {

namespace {

/// Whether the error is due to the file name.
bool IsOfName(const std::error_code& code) {
    const int names[] = {ENOENT, ENOTDIR, EACCES, EPERM, EROFS, EINVAL, ENAMETOOLONG, ELOOP};
    return std::find(std::begin(names), std::end(names), code.value()) != std::end(names);
}

} // namespace

std::string DescribeFile(const std::string& file) {
    return file == standardStream ? "standard input" : '"' + file + '"';
}

void CheckOutput(const std::string& file) {
    namespace fs = std::filesystem;
    std::error_code ignored;
    if (file == standardStream) {
        return;
    }
    if (fs::exists(file, ignored) && !fs::is_regular_file(file, ignored)) {
        throw UsageError(DescribeFile(file) + ": not a regular file; use " + standardStream + " for standard output");
    }
    const fs::path folder = fs::path(file).parent_path();
    if (!folder.empty() && !fs::is_directory(folder, ignored)) {
        throw UsageError(DescribeFile(file) + ": cannot be written: " + std::strerror(ENOENT));
    }
}

void WriteOutput(const std::string& file, std::string_view content) {
    if (file == standardStream) {
        std::cout << content << std::flush;
        return;
    }
    CheckOutput(file);
    try {
        Common::ReplaceFile(file, content);
    } catch (const std::system_error& error) {
        const std::string text = DescribeFile(file) + ": cannot be written: " + error.code().message();
        if (IsOfName(error.code())) {
            throw UsageError(text);
        }
        throw std::runtime_error(text);
    }
}

} // namespace Host
