#include <iostream>

#include "varnel/varnel.h"

/// A beam that is made, numbered and found again through the installed library alone.
int main() {
    VarnelFactory factory;
    VarnelManager manager(&factory);
    Varnel &model = *manager.getDatabase();
    model.add(model.giveBeam({0, 0, 0}, {0, 0, 3}));
    manager.setup();
    const VarnelBeam *beam = model.getBeams().front();
    std::cout << "beam " << beam->getNumber() << " of " << model.getPoints().size() << " points\n";
    return beam->getNumber() == 1 && model.getPoints().size() == 2 ? 0 : 1;
}
