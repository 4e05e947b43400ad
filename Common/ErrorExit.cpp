#include "Common/ErrorExit.h"

#include "Common/Text.h"

#include <iostream>

namespace Common {

void PrintError(const std::string& program, const std::string& text) {
    std::cout.flush(); // keeps results and errors in order if both go to the same place
    std::cerr << program + ": " + InOneLine(text) + '\n';
}

int Worse(int code, int failed) { return code == Success || code == Differs ? failed : code; }

int FlushResults(const std::string& program, int code, int failed) {
    if (std::cout.flush()) {
        return code;
    }
    PrintError(program, "the results could not be written");
    return Worse(code, failed);
}

} // namespace Common
