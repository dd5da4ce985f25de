#ifndef ZRINITIALIZERABSTRACT_H
#define ZRINITIALIZERABSTRACT_H

#include "zrcore_export.h"

#include <QtGlobal>

class QCommandLineParser;

/** How the editor starts; passed to every initializer's setup. */
enum ZRInitializerOption
{
    ZRInitializerDefault = 0,
    ZRInitializerHeadless = 1,
    ZRInitializerMasterMode = 2,
};

/** Command-line parsing of the editor, to which initializers may add their options. */
class ZRCORE_EXPORT ZRCommandLineParserAbstract
{
public:
    virtual ~ZRCommandLineParserAbstract();
    virtual QCommandLineParser *parser() = 0;
};

/** A library's start-up hook, registered with ZRInitializer when the library is loaded. */
class ZRCORE_EXPORT ZRInitializerAbstract
{
public:
    virtual ~ZRInitializerAbstract();
    virtual void setup(ZRInitializerOption option) = 0;
    virtual void teardown() = 0;
    /** Adds the library's command-line options; none by default. */
    virtual void addCommandLineOptionHandlers(ZRCommandLineParserAbstract *parser);
};

#endif
