// Reads any bytes as a JPEG file and writes what can be read back:
//   cmake --preset fuzz && cmake --build --preset fuzz && build/fuzz/bin/jpeg-fuzz -max_len=4096 CORPUS samples

#include "collection/DocumentLoad.h"
#include "common/ErrorReport.h"
#include "writer/JpegDocument.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

class Silent : public ovisto::ErrorReporter {
public:
    void report(const std::string& /*context*/, const ovisto::Error& /*error*/) override {}
};

/// A file in memory where the system has such a folder, so that the disk is not what is tested.
std::string scratchFile()
{
    std::string folder =
        std::filesystem::is_directory("/dev/shm") ? "/dev/shm/ovisto-fuzz-XXXXXX" : "ovisto-fuzz-XXXXXX";
    if (mkdtemp(folder.data()) == nullptr)
        std::abort();
    return folder + "/a.jpg";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string path = scratchFile();
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    Silent reporter;
    ovisto::ErrorTrap trap;
    trap.run([&] {
        ovisto::XmlDocument document = ovisto::loadDocument(path);
        ovisto::JpegDocument(reporter).WriteJpeg(document, path);
    });
    return 0;
}
