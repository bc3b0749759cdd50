#include "ui/program.h"

int main(int argc, char* argv[]) { return ng::RunProgram(argc, argv); }
