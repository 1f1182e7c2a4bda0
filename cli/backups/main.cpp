#include "cli/backups/backupstool.h"
#include "cli/toolmain.h"

int main(int argc, char *argv[])
{
    return runTool(argc, argv, &BackupsTool::run);
}
