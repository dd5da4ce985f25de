#include "ZRArticleClassProperties.h"

ZRArticleClassProperties::ZRArticleClassProperties() = default;

ZRArticleClassProperties::~ZRArticleClassProperties() = default;
