#include "common/text/CaseFolding.h"

#include "common/text/Unicode.h"

#include <cwctype>

namespace ovisto {

std::u32string foldedCase(std::string_view text)
{
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    std::u32string folded = characters(text);
    for (char32_t& character : folded) {
        if (character >= U'A' && character <= U'Z')
            character += U'a' - U'A';
        else if (character >= 128 && unicode != nullptr)
            character = static_cast<char32_t>(towlower_l(static_cast<wint_t>(character), unicode));
    }
    return folded;
}

} // namespace ovisto
