// Positive controls of the ThreadSanitizer job: faults that the sanitizer must report. If it stays
// silent here, a clean run of the concurrency tests proves nothing.
//
//   tsancontrol race         two threads write one integer without a lock: a data race.
//   tsancontrol lock-order   one thread takes a QMutex, then a recursive ZRReadWriteLock; a later
//                            thread takes them the other way round: a lock-order inversion, which only
//                            the lock annotations make visible (the two threads never overlap, so it
//                            cannot actually deadlock here).

#include "ZRReadWriteLock.h"

#include <QMutex>

#include <cstdio>
#include <cstring>
#include <thread>

namespace {
int unguarded = 0;

void race()
{
    std::thread first([] { unguarded += 1; });
    std::thread second([] { unguarded += 2; });
    first.join();
    second.join();
}

void lockOrder()
{
    // The lock types of the category registry and of the translation registry.
    QMutex categories;
    ZRReadWriteLock translations(QReadWriteLock::Recursive);
    std::thread([&] {
        QMutexLocker outer(&categories);
        ZRReadLocker inner(&translations);
    }).join();
    std::thread([&] {
        ZRWriteLocker outer(&translations);
        QMutexLocker inner(&categories);
    }).join();
}
} // namespace

int main(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], "race") == 0) {
        race();
    } else if (argc == 2 && std::strcmp(argv[1], "lock-order") == 0) {
        lockOrder();
    } else {
        std::fprintf(stderr, "usage: %s race|lock-order\n", argv[0]);
        return 2;
    }
    return 0;
}
