#ifndef FUZZSUPPORT_H
#define FUZZSUPPORT_H

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

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

#endif
