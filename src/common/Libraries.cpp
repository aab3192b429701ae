// SPDX-License-Identifier: MIT

#include "common/Libraries.h"

#include <libexslt/exslt.h>
#include <libxml/parser.h>
#include <libxslt/xslt.h>
#include <unistring/version.h>

#include <array>
#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

namespace ovisto {

namespace {

/// The version that the XML libraries count as 10,000 times the first number, 100 times the second, and the third.
std::string countedVersion(int number)
{
    return std::to_string(number / 10'000) + "." + std::to_string(number / 100 % 100) + "." +
           std::to_string(number % 100);
}

/// The same in a text, which may go on after the number.
std::string countedVersion(const char* text)
{
    constexpr int kDecimal = 10;
    return countedVersion(static_cast<int>(std::strtol(text, nullptr, kDecimal)));
}

/// The engine's version text goes on with a date.
std::string pcreVersion()
{
    std::array<char, 64> text{};
    pcre2_config(PCRE2_CONFIG_VERSION, text.data());
    const std::string version = text.data();
    return version.substr(0, version.find(' '));
}

std::string unistringVersion()
{
    const int number = _libunistring_version;
    return std::to_string(number >> 16) + "." + std::to_string(number >> 8 & 0xFF) + "." +
           std::to_string(number & 0xFF);
}

/// Its interface has no call that tells.
std::string jpegVersion()
{
    constexpr int kNumber = LIBJPEG_TURBO_VERSION_NUMBER;
    return std::to_string(kNumber / 1'000'000) + "." + std::to_string(kNumber / 1'000 % 1'000) + "." +
           std::to_string(kNumber % 1'000);
}

} // namespace

const char* programVersion()
{
    return OVISTO_VERSION;
}

std::vector<Library> engineLibraries()
{
    return {{"libxml2", countedVersion(xmlParserVersion)},
            {"libxslt", countedVersion(xsltLibxsltVersion)},
            {"libexslt", countedVersion(exsltLibexsltVersion)},
            {"PCRE2", pcreVersion()},
            {"libunistring", unistringVersion()},
            {"libjpeg-turbo", jpegVersion()},
            {"utfcpp", OVISTO_UTFCPP_VERSION}};
}

} // namespace ovisto
