// SPDX-License-Identifier: MIT

#include "common/text/RegularExpression.h"

#include "common/Error.h"
#include "common/text/Unicode.h"

#include <array>

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

namespace ovisto {

namespace {

struct PatternFree {
    void operator()(pcre2_code* code) const { pcre2_code_free(code); }
    void operator()(pcre2_compile_context* context) const { pcre2_compile_context_free(context); }
    void operator()(pcre2_match_context* context) const { pcre2_match_context_free(context); }
    void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
    void operator()(pcre2_jit_stack* stack) const { pcre2_jit_stack_free(stack); }
};
template <class T> using PatternPtr = std::unique_ptr<T, PatternFree>;

constexpr std::uint32_t kCompileOptions =
    PCRE2_UTF | PCRE2_CASELESS | PCRE2_MULTILINE | PCRE2_ALT_BSUX | PCRE2_ALLOW_EMPTY_CLASS | PCRE2_MATCH_UNSET_BACKREF;
// The compiled expression counts a step only now and then, and so is stopped early; what it did not decide by then is
// left to the interpreter, which counts each.
constexpr std::uint32_t kCompiledLimit = 1'000;
constexpr std::uint32_t kInterpretedLimit = 5'000'000; ///< some tenths of a second
constexpr std::size_t kJitStackStart = std::size_t{32} * 1024;
constexpr std::size_t kJitStackMost = std::size_t{8} * 1024 * 1024;

/// One stack a thread, for as long as the thread lives.
pcre2_jit_stack* threadStack(void* /*data*/)
{
    thread_local const PatternPtr<pcre2_jit_stack> stack(
        pcre2_jit_stack_create(kJitStackStart, kJitStackMost, nullptr));
    return stack.get();
}

std::string messageOf(int error)
{
    std::array<PCRE2_UCHAR, 256> message{};
    pcre2_get_error_message(error, message.data(), message.size());
    return reinterpret_cast<const char*>(message.data());
}

constexpr std::string_view kWordLetter = R"([\p{L}\p{M}\p{N}\p{Pc}\u200C\u200D])"; ///< with what is invisible in words
constexpr std::string_view kUnspacedLetter = R"([\p{scx:Han}\p{scx:Hiragana}\p{scx:Katakana}\p{scx:Bopomofo}\p{scx:Yi})"
                                             R"(\p{scx:Thai}\p{scx:Lao}\p{scx:Khmer}\p{scx:Myanmar}])";
constexpr std::string_view kKatakana = "[\\p{sc:Katakana}ーｰﾞﾟ]";

/// What matches between two characters of the same word. A mark belongs to the letter in front of it.
std::string withinWord()
{
    const auto after = [](std::string_view letter) { return "(?<=" + std::string(letter) + ")"; };
    const auto before = [](std::string_view letter) { return "(?=" + std::string(letter) + ")"; };
    const std::string unspaced(kUnspacedLetter);
    return after(kWordLetter) + "(?:" + before(kWordLetter) + "(?!" + unspaced + ")(?<!" + unspaced + ")|" +
           before("\\p{M}") + "|" + after(kKatakana) + before(kKatakana) + ")";
}

/// What stands for `\` and `escaped`. The engine gives a meaning to more letters than ECMAScript does: an escaped
/// letter that means nothing there is that letter. Only outside a class, `letters` decide where a word begins and ends.
std::string escapeSpelling(char escaped, bool inClass, Letters letters)
{
    constexpr std::string_view kLetterEscapes = "bBdDsSwWfnrtvcxu";
    if (letters == Letters::Unicode && !inClass && (escaped == 'b' || escaped == 'B')) {
        static const std::string within = withinWord();
        return (escaped == 'b' ? "(?!" : "(?:") + within + ")";
    }
    const bool isLetter = (escaped >= 'a' && escaped <= 'z') || (escaped >= 'A' && escaped <= 'Z');
    const bool hasMeaning = !isLetter || kLetterEscapes.find(escaped) != std::string_view::npos;
    return hasMeaning ? std::string{'\\', escaped} : std::string{escaped};
}

/// `pattern` as the engine writes the same thing. A bracket in a class is one; and what begins with "(*" is an error,
/// not a command to the engine.
std::string engineSpelling(std::string_view pattern, Letters letters)
{
    std::string spelling;
    bool inClass = false;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char character = pattern[i];
        if (character == '\\' && i + 1 < pattern.size()) {
            spelling += escapeSpelling(pattern[++i], inClass, letters);
            continue;
        }
        if (character == '[' && inClass)
            spelling += '\\';
        else if (character == '[')
            inClass = true;
        else if (character == ']')
            inClass = false;
        spelling += character;
        if (!inClass && character == '(' && pattern.substr(i + 1).starts_with('*'))
            spelling += "?:";
    }
    return spelling;
}

} // namespace

struct RegularExpression::Compiled {
    PatternPtr<pcre2_code> code;
    PatternPtr<pcre2_match_context> compiled;
    PatternPtr<pcre2_match_context> interpreted;
};

RegularExpression::RegularExpression(const std::string& pattern, Letters letters)
    : m_compiled(std::make_unique<Compiled>())
{
    const PatternPtr<pcre2_compile_context> context(pcre2_compile_context_create(nullptr));
    pcre2_set_newline(context.get(), PCRE2_NEWLINE_ANYCRLF);
    const std::string spelling = engineSpelling(pattern, letters);
    const std::uint32_t options = kCompileOptions | (letters == Letters::Unicode ? PCRE2_UCP : 0U);
    int error = 0;
    std::size_t place = 0;
    m_compiled->code.reset(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(spelling.data()), spelling.size(), options,
                                         &error, &place, context.get()));
    if (!m_compiled->code) {
        const std::size_t character = characterCount(std::string_view(spelling).substr(0, place));
        throw Error{kInvalidCall,
                    {Message::NotARegularExpression, pattern, messageOf(error), std::to_string(character)}};
    }
    // Where the processor has no such compiler, the expression is interpreted, as it would be without this.
    pcre2_jit_compile(m_compiled->code.get(), PCRE2_JIT_COMPLETE);
    m_compiled->compiled.reset(pcre2_match_context_create(nullptr));
    pcre2_set_match_limit(m_compiled->compiled.get(), kCompiledLimit);
    pcre2_jit_stack_assign(m_compiled->compiled.get(), threadStack, nullptr);
    m_compiled->interpreted.reset(pcre2_match_context_create(nullptr));
    pcre2_set_match_limit(m_compiled->interpreted.get(), kInterpretedLimit);
}

RegularExpression::RegularExpression(RegularExpression&& other) noexcept = default;
RegularExpression& RegularExpression::operator=(RegularExpression&& other) noexcept = default;
RegularExpression::~RegularExpression() = default;

bool RegularExpression::matches(std::string_view text) const
{
    const std::uint32_t checkedBefore = isUtf8(text) ? PCRE2_NO_UTF_CHECK : 0; // the engine would take far longer
    const PatternPtr<pcre2_match_data> data(pcre2_match_data_create(1, nullptr));
    const auto match = [&](std::uint32_t options, const PatternPtr<pcre2_match_context>& context) {
        return pcre2_match(m_compiled->code.get(), reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(), 0, options,
                           data.get(), context.get());
    };
    int result = match(checkedBefore, m_compiled->compiled);
    if (result == PCRE2_ERROR_MATCHLIMIT)
        result = match(checkedBefore | PCRE2_NO_JIT, m_compiled->interpreted);
    if (result == PCRE2_ERROR_NOMATCH)
        return false;
    if (result < 0)
        throw Error{kOutOfMemory, {Message::ExpressionRunsTooLong, messageOf(result)}};
    return true;
}

} // namespace ovisto
