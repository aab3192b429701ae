// SPDX-License-Identifier: MIT

#include "collection/Photograph.h"

#include "collection/DocumentLoad.h"
#include "collection/DocumentSaving.h"
#include "common/FirstReport.h"
#include "document/MetadataDocument.h"
#include "document/NodePath.h"
#include "document/NodeValue.h"

#include <utility>

namespace ovisto {

namespace {

/// Does `step`, which reports what it raises. Raises the first report, with its context.
template <class Step> void withContext(Step&& step)
{
    FirstReport report;
    ErrorTrap trap;
    trap.run([&] { std::forward<Step>(step)(report); });
    if (!trap.pending())
        return;
    Error error = report.orElse(trap.error());
    error.node = trap.error().node;
    throw Error(std::move(error));
}

/// Why no photograph can be changed in this way; empty when some can.
Phrase objectionTo(const NodeChange& change)
{
    if (!change.entry && pathMeaning(change.path) != PathMeaning::Entry)
        return Message::NoDictionaryEntry;
    return objection(change, Reading::Full);
}

} // namespace

Photograph::Photograph(std::string path, const TagDictionary& dictionary)
    : m_path(std::move(path)), m_dictionary(dictionary)
{
    read();
}

void Photograph::read()
{
    const FileReading reading = readFile(m_path, Reading::Full);
    m_document = documentOf(reading.text);
    m_asRead = reading.identity;
}

std::string Photograph::value(const std::string& nodePath) const
{
    return nodeValue(m_document.selectSingleNode(nodePath));
}

std::string Photograph::inWords(const std::string& nodePath, const ValueWords& words) const
{
    return ValueTexts{&m_dictionary, &words}.of(m_document.selectSingleNode(nodePath));
}

bool Photograph::set(const std::string& nodePath, const std::string& value)
{
    return apply(NodeAction::Set, nodePath, value);
}

bool Photograph::remove(const std::string& nodePath)
{
    return apply(NodeAction::Delete, nodePath, {});
}

bool Photograph::apply(NodeAction action, const std::string& nodePath, const std::string& value)
{
    const NodeChange change{
        .action = action, .entry = m_dictionary.entryAt(nodePath), .value = value, .path = nodePath};
    if (const Phrase reason = objectionTo(change); !reason.isEmpty())
        throw Error{kInvalidCall, {Message::InContext, nodePath, reason}, nodePath};
    bool changed = false;
    withContext([&](ErrorReporter& reporter) { changed = applyChange(m_document, change, reporter).changed; });
    return changed;
}

SaveReceipt Photograph::save()
{
    SaveReceipt receipt;
    withContext(
        [&](ErrorReporter& reporter) { receipt = saveDocument(m_document, m_asRead, m_path, SavingWay{}, reporter); });
    ErrorTrap trap; // a file that another program has taken away by now was saved nevertheless
    trap.run([&] { read(); });
    return receipt;
}

} // namespace ovisto
