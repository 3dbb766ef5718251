// Brings one candidate from the start of the process to its first painted page and says so on the
// standard output. Which one is a matter of the build: BENCH_MAKE names its factory call.

#include "Candidate.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    using namespace bench;
    const Site site(argv[1]);
    QApplication application(argc, argv);
    const std::unique_ptr<Candidate> pCandidate = BENCH_MAKE;
    pCandidate->expectPaint();
    pCandidate->start(argv[2]);
    if (!pCandidate->waitPainted())
        return 1;
    std::puts("painted");
    std::fflush(stdout);
    return 0;
}
