#include "ZRBasisSettings.h"

#include <QtGlobal>

template class ZRSingleton<ZRBasisSettings>;

ZRBasisSettings::ZRBasisSettings()
    : m_masterMode(qEnvironmentVariableIntValue("ZR_MASTER_MODE") == 1)
{ }

ZRBasisSettings::~ZRBasisSettings() = default;
