#include "cli/CommandLine.h"
#include "cli/Commands.h"

int main(int argc, char** argv)
{
    int exitStatus = ovisto::kAllDone;
    const auto line = ovisto::parseCommandLine(argc, argv, exitStatus);
    return line ? ovisto::runCommand(*line) : exitStatus;
}
