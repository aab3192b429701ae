// SPDX-License-Identifier: MIT

#include "cli/CommandLine.h"
#include "common/system/Interruption.h"
#include "common/system/Process.h"

int main(int argc, char** argv)
{
    ovisto::occupyStandardStreams();
    ovisto::outliveFileSizeLimit();
    const int exitStatus = ovisto::runCommandLine(argc, argv);
    if (ovisto::interrupted())
        ovisto::endInterrupted();
    return exitStatus;
}
