#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "common/system/Interruption.h"

int main(int argc, char** argv)
{
    int exitStatus = ovisto::kAllDone;
    const auto line = ovisto::parseCommandLine(argc, argv, exitStatus);
    if (line)
        exitStatus = ovisto::runCommand(*line);
    if (ovisto::interrupted())
        ovisto::endInterrupted();
    return exitStatus;
}
