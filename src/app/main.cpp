#include "startup.h"

int main(int argc, char **argv)
{
    return Scheduler::runManager(argc, argv);
}
