#include "cli/env/envtool.h"
#include "cli/toolmain.h"

int main(int argc, char *argv[])
{
    return runTool(argc, argv, &EnvTool::run);
}
