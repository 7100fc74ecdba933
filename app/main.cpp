#include "startup.h"

int main(int argc, char** argv)
{
    return Startup::run(argc, argv);
}
