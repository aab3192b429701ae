// SPDX-License-Identifier: MIT

// Writes the seeds into a folder: fuzz-seeds FOLDER

#include "Seeds.h"

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    ovisto::fuzz::writeSeeds(argv[1]);
    return 0;
}
