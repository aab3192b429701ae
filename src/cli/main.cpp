#include "cli/CommandLine.h"
#include "common/system/Interruption.h"

int main(int argc, char** argv)
{
    const int exitStatus = ovisto::runCommandLine(argc, argv);
    if (ovisto::interrupted())
        ovisto::endInterrupted();
    return exitStatus;
}
