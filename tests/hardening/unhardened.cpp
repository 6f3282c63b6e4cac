// A program with every weakness that tools/check-hardening looks for.
#include <cstdlib>

int main() {
    return std::system("true");
}
