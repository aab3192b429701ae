// SPDX-License-Identifier: MIT

#include "collection/Photograph.h"

#include <iostream>

/// Prints the title of FILE, replaces it by TITLE, and says what became of the file: title FILE TITLE.
int main(int count, char* arguments[])
try {
    if (count != 3)
        return 2;
    const ovisto::TagDictionary dictionary(DATA_FOLDER "/Merovel.xml");
    ovisto::Photograph photograph(arguments[1], dictionary);
    std::cout << photograph.inWords(ovisto::kTitlePath) << "\n";
    photograph.set(ovisto::kTitlePath, arguments[2]);
    std::cout << inEnglish(summary(photograph.save())) << "\n";
} catch (const ovisto::Error& error) {
    std::cerr << inEnglish(error.description) << "\n";
    return 1;
}
