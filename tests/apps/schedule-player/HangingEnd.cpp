#include <unistd.h>

/// Loaded into a program, it hangs when the program comes to its end.
__attribute__((destructor)) static void hang()
{
    ::sleep(30);
}
