// SPDX-License-Identifier: MIT

#include "manual/Manual.h"

int main(int argc, char** argv)
{
    return ovisto::writeManual(argc, argv);
}
