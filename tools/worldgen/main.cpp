// umbrith-worldgen PROGRAM_FOLDER: writes the default art, music and sounds
// into the folder, then the starter content made from them.
#include "content.h"
#include "generate.h"

#include <QString>

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: umbrith-worldgen PROGRAM_FOLDER\n";
        return 2;
    }
    try {
        worldgen::writeAll(worldgen::generateAll(), argv[1]);
        worldgen::writeContent(QString::fromLocal8Bit(argv[1]));
    } catch (const std::exception& e) {
        std::cerr << "umbrith-worldgen: " << e.what() << '\n';
        return 1;
    }
    return 0;
}
