/// What every page is made of, as pages/build.mjs bundles it.
#pragma once

#include <string_view>

namespace orvane::pages {

std::string_view Policy();        ///< The content security policy.
std::string_view Style();         ///< CSS, with the font in it.
std::string_view StartScript();   ///< The script that runs first.
std::string_view PlayerScript();  ///< The rest, deflated and in base64.

}  // namespace orvane::pages
