// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <string>

class QWidget;

namespace ovisto::test {

/// Called with a name for the form and what is filled in, and the form, which is visible and may be changed.
using FormLook = std::function<void(const QString& name, QWidget& form)>;

/// Opens every form of the program, some of them in several states, filled as when it is at work, and has a look at
/// each. The forms are made while this runs, in the language of that time; `dictionary` is the path of the tag
/// dictionary.
void forEveryForm(const FormLook& look,
                  const std::string& dictionary = std::string(OVISTO_SOURCE_FOLDER) + "/data/Merovel.xml");

} // namespace ovisto::test
