#include "ZRProductChecker.h"

ZRProductChecker::~ZRProductChecker() = default;
