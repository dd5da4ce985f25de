#ifndef FUZZSUPPORT_H
#define FUZZSUPPORT_H

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

/** Helpers shared by the fuzz targets. */
namespace FuzzSupport {

/**
 * Drops the library's warnings: bad input is expected on every run and printing it would slow the
 * fuzzer down. Fatal messages still stop the program, so they are found like a crash.
 */
inline void quietMessages()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &message) {
        if (type == QtFatalMsg) {
            std::fprintf(stderr, "fatal: %s\n", qPrintable(message));
            std::abort();
        }
    });
}

namespace detail {
    // The input being run, and since when (steady clock, in milliseconds; 0 between inputs).
    inline std::atomic<const uint8_t *> runningData { nullptr };
    inline std::atomic<size_t> runningSize { 0 };
    inline std::atomic<std::int64_t> runningSince { 0 };

    inline std::int64_t milliseconds()
    {
        using namespace std::chrono;
        return duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch()).count() + 1;
    }

    inline void writeAll(int fd, const void *data, size_t size)
    {
        const char *bytes = static_cast<const char *>(data);
        while (size > 0) {
            const ssize_t written = ::write(fd, bytes, size);
            if (written <= 0)
                return;
            bytes += written;
            size -= size_t(written);
        }
    }
} // namespace detail

/**
 * Ends the process when one input has run for 30 seconds longer than the fuzzer's -timeout. The fuzzer
 * reports a timeout from a signal handler that allocates; when the signal lands inside the allocator,
 * that report waits forever for the allocator's lock and the run hangs. The watchdog then writes the
 * input to "<-artifact_prefix>timeout-hung-<hash>" and exits with status 70, without allocating.
 */
inline void startWatchdog(int argc, char **argv)
{
    long timeout = 1200; // the fuzzer's default
    const char *prefix = "";
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], "-timeout=", 9) == 0)
            timeout = std::atol(argv[i] + 9);
        else if (std::strncmp(argv[i], "-artifact_prefix=", 17) == 0)
            prefix = argv[i] + 17;
    }
    if (timeout <= 0)
        return;
    std::thread([limit = (timeout + 30) * 1000, prefix] {
        for (;;) {
            std::this_thread::sleep_for(std::chrono::seconds(1));
            const std::int64_t since = detail::runningSince;
            const uint8_t *data = detail::runningData;
            const size_t size = detail::runningSize;
            if (since == 0 || detail::milliseconds() - since < limit || detail::runningSince != since)
                continue;
            std::uint64_t hash = 14695981039346656037u; // FNV-1a
            for (size_t i = 0; i < size; ++i)
                hash = (hash ^ data[i]) * 1099511628211u;
            char path[4096];
            std::snprintf(path, sizeof path, "%stimeout-hung-%016llx", prefix, static_cast<unsigned long long>(hash));
            const int fd = ::open(path, O_WRONLY | O_CREAT | O_TRUNC, 0644);
            if (fd >= 0) {
                detail::writeAll(fd, data, size);
                ::close(fd);
            }
            char message[4200];
            const int length = std::snprintf(message, sizeof message,
                "fatal: an input has run for %lld s and the timeout report hangs; input written to %s\n"
                "SUMMARY: libFuzzer: timeout\n",
                static_cast<long long>(limit / 1000), path);
            detail::writeAll(2, message, size_t(std::min(length, int(sizeof message) - 1)));
            ::_exit(70);
        }
    }).detach();
}

/** Marks one input as running, for the watchdog, while it lives. */
class RunningInput
{
public:
    RunningInput(const uint8_t *data, size_t size)
    {
        detail::runningData = data;
        detail::runningSize = size;
        detail::runningSince = detail::milliseconds();
    }
    ~RunningInput() { detail::runningSince = 0; }
    RunningInput(const RunningInput &) = delete;
    RunningInput &operator=(const RunningInput &) = delete;
};

/** What every target does first: quiet messages and the watchdog. */
inline void initialize(int *argc, char ***argv)
{
    quietMessages();
    startWatchdog(*argc, *argv);
}

/** The input as bytes, without copying it. */
inline QByteArray bytes(const uint8_t *data, size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
}

/** The input decoded as UTF-8 text (invalid sequences become replacement characters). */
inline QString text(const uint8_t *data, size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
}

/** Stops the run with a message when a property of the code under test does not hold. */
inline void check(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "property violated: %s\n", what);
        std::abort();
    }
}

/** Reads values from the front of the input, then hands out what is left as text. */
class Reader
{
public:
    Reader(const uint8_t *data, size_t size)
        : m_data(data)
        , m_size(size)
    { }

    /** The next byte, or 0 when the input is used up. */
    uint8_t byte()
    {
        if (m_size == 0)
            return 0;
        --m_size;
        return *m_data++;
    }

    /** Everything not read yet, as UTF-8 text. */
    QString rest() const { return text(m_data, m_size); }

private:
    const uint8_t *m_data;
    size_t m_size;
};

} // namespace FuzzSupport

// Each fuzz program includes this header once and defines these two: what it sets up before the
// first input, after the common setup, and what it does with one input.
void fuzzSetUp();
void fuzzOneInput(const uint8_t *data, size_t size);

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    FuzzSupport::initialize(argc, argv);
    fuzzSetUp();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const FuzzSupport::RunningInput running(data, size);
    fuzzOneInput(data, size);
    return 0;
}

#endif
