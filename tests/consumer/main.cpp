#include <iostream>

#include "varnel/varnel.h"

/// Numbers one plate through the installed library alone.
int main() {
    VarnelManager manager(new VarnelFactory);
    return 0;
}
