#ifndef ZRBASISSETTINGS_H
#define ZRBASISSETTINGS_H

#include "ZRSingleton.h"
#include "zrcore_export.h"

#include <atomic>

/**
 * Basic settings of the editor. Reached as ZRSingleton<ZRBasisSettings>::instance(). Master mode
 * (the maintainers' mode) starts on when the environment variable ZR_MASTER_MODE is set to 1.
 */
class ZRCORE_EXPORT ZRBasisSettings
{
public:
    ZRBasisSettings();
    virtual ~ZRBasisSettings();

    bool runsInMasterMode() const { return m_masterMode.load(std::memory_order_relaxed); }
    void setRunsInMasterMode(bool on) { m_masterMode.store(on, std::memory_order_relaxed); }

private:
    std::atomic<bool> m_masterMode { false };
};

extern template class ZRCORE_EXPORT ZRSingleton<ZRBasisSettings>;

#endif
