#include "textresourceloader.h"

#include "resourcestring.h"

CXString TextResourceLoader::LoadStringW(unsigned id) const
{
    return o7::loadResourceString(m_module, id);
}
