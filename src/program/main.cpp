#include "program/modMain.h"

int main(int argc, char** argv) {
    return neb::Main(argc, argv);
}
