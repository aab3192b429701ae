// Reads any bytes as a JPEG file and saves what can be read, in both ways:
//   cmake --preset fuzz && cmake --build --preset fuzz && build/fuzz/bin/jpeg-fuzz -max_len=4096 CORPUS samples

#include "collection/DocumentLoad.h"
#include "collection/DocumentSaving.h"
#include "common/ErrorReport.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

class Silent : public ovisto::ErrorReporter {
public:
    void report(const ovisto::Phrase& /*context*/, const ovisto::Error& /*error*/) override {}
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
    Silent reporter;
    for (const ovisto::WritingWay way : {ovisto::WritingWay::Keep, ovisto::WritingWay::Rebuild}) {
        std::filesystem::remove(path + ".original");
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
        ovisto::ErrorTrap trap;
        trap.run([&] {
            const ovisto::FileReading reading = ovisto::readFile(path);
            ovisto::XmlDocument document = ovisto::documentOf(reading.text);
            const std::vector<ovisto::XmlNode> entries = document.node().descendants("IFD");
            if (size % 2 == 0 && !entries.empty()) // one value is deleted, or nothing changed
                ovisto::XmlNode(entries[size / 2 % entries.size()]).remove();
            ovisto::saveDocument(document, reading.identity, path, {way}, reporter);
        });
    }
    return 0;
}
