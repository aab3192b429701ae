#include "ui/NodeAddForm/NodePicker.h"

#include "document/NodeCreation.h"
#include "document/NodePath.h"

namespace ovisto {

std::vector<XmlNode> pickableEntries(const TagDictionary& Merovel, bool technical)
{
    return Merovel.document().selectNodes(technical ? "//*[not(@vis='2')]" : "//*[not(@vis>'0')]");
}

std::string addEntry(XmlDocument& JpegDoc, const XmlNode& entry, ErrorReporter& reporter)
{
    std::string path = NodeXPath(entry);
    if (JpegDoc.selectSingleNode(path))
        return {};
    CreateNode(JpegDoc, entry, reporter);
    return path;
}

} // namespace ovisto
