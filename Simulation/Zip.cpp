#include "Simulation/Zip.h"

#include <zip.h>

#include <memory>
#include <stdexcept>

namespace Simulation {

namespace {

using Source = std::unique_ptr<zip_source_t, decltype(&zip_source_free)>;

void Require(bool done) {
    if (!done) {
        throw std::runtime_error("the zip archive of the description cannot be made");
    }
}

std::string Content(zip_source_t* archive) {
    Require(zip_source_open(archive) == 0);
    std::string content;
    char part[4096];
    for (zip_int64_t size = 0; (size = zip_source_read(archive, part, sizeof part)) != 0;) {
        Require(size > 0);
        content.append(part, static_cast<std::size_t>(size));
    }
    zip_source_close(archive);
    return content;
}

} // namespace

std::string Zipped(const std::string& file, const std::string& content) {
    const zip_uint16_t firstDay = 1 << 5 | 1; // the first day that an archive can state: 1 January 1980
    const Source buffer(zip_source_buffer_create(nullptr, 0, 0, nullptr), &zip_source_free);
    Require(buffer != nullptr);
    zip_source_keep(buffer.get()); // the archive releases it when it is closed
    std::unique_ptr<zip_t, decltype(&zip_discard)> archive(zip_open_from_source(buffer.get(), ZIP_TRUNCATE, nullptr),
                                                           &zip_discard);
    Require(archive != nullptr);
    Source entry(zip_source_buffer(archive.get(), content.data(), content.size(), 0), &zip_source_free);
    Require(entry != nullptr);
    const zip_int64_t index = zip_file_add(archive.get(), file.c_str(), entry.get(), ZIP_FL_ENC_UTF_8);
    Require(index >= 0);
    static_cast<void>(entry.release()); // now the archive's
    Require(zip_file_set_dostime(archive.get(), static_cast<zip_uint64_t>(index), 0, firstDay, 0) == 0);
    Require(zip_close(archive.get()) == 0);
    static_cast<void>(archive.release()); // closed
    return Content(buffer.get());
}

} // namespace Simulation
