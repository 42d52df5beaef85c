#include <iostream>

#include "varnel/varnel.h"

// Makes a slab on four columns, writes the project and reads it into a second manager.
int main() {
    VarnelFactory factory;
    VarnelManager manager(&factory);
    Varnel &model = *manager.getDatabase();

    const KzVector3D corners[] = {{0, 0, 3}, {6, 0, 3}, {6, 4, 3}, {0, 4, 3}};
    VarnelPlate *slab = model.givePlate(true);
    slab->setArea(model.giveAreaRectangle(corners[0], corners[1], corners[2], corners[3]));
    slab->setThick(0.25);
    const int fixedInZ = 4;
    for (const KzVector3D &corner : corners) model.givePointBoundaryRectan(corner, fixedInZ, 0.3, 0.3);
    manager.output("first_host.xml");

    VarnelFactory readerFactory;  // one for each manager that lives
    VarnelManager reader(&readerFactory);
    reader.input("first_host.xml");
    const Varnel &copy = *reader.getDatabase();
    std::cout << copy.getPlates().size() << " plate, " << copy.getPointBoundaries().size() << " columns\n";
    return copy.getPlates().size() == 1 && copy.getPointBoundaries().size() == 4 ? 0 : 1;
}
