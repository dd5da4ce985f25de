#include "ZRInitializerAbstract.h"

ZRCommandLineParserAbstract::~ZRCommandLineParserAbstract() = default;

ZRInitializerAbstract::~ZRInitializerAbstract() = default;

void ZRInitializerAbstract::addCommandLineOptionHandlers(ZRCommandLineParserAbstract *parser)
{
    Q_UNUSED(parser)
}
