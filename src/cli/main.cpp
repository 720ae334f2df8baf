#include <cstdio>

int main() {
    std::fputs("usage: flickerscribe-cli COMMAND ...\n", stderr);
    return 2;
}
