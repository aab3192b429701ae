#include "ui/NodeAddForm/NodePicker.h"

#include "document/NodeCreation.h"

namespace ovisto {

std::vector<DictionaryEntry> pickableEntries(const TagDictionary& Merovel, bool technical)
{
    return Merovel.entries(technical);
}

std::string addEntry(XmlDocument& JpegDoc, const DictionaryEntry& entry, ErrorReporter& reporter)
{
    std::string path = entry.path();
    if (JpegDoc.selectSingleNode(path))
        return {};
    CreateNode(JpegDoc, entry, reporter);
    return path;
}

} // namespace ovisto
