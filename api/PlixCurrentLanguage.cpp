#include "api/PlixCurrentLanguage.h"

namespace plix {

namespace {

std::string& CurrentLanguage()
{
    static std::string language = "en";
    return language;
}

} // namespace

void SetCurrentLanguage(const std::string& language)
{
    CurrentLanguage() = language;
}

std::string GetCurrentLanguage()
{
    return CurrentLanguage();
}

} // namespace plix
