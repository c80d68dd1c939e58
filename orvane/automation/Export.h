/// The mark on everything that liborvane shows to programs that link it.
#pragma once

#define ORVANE_API [[gnu::visibility("default")]]
