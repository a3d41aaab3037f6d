// An empty window of the toolkit: what the program's start is measured against.
#include "first_picture.h"

#include <QWidget>

int main(int argc, char* argv[])
{
    const tessarine::bench::FirstPicture application(argc, argv);
    QWidget window;
    window.resize(264, 514);
    window.show();
    return QApplication::exec();
}
