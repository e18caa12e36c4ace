// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// An empty window of the toolkit, the least that a program with a window does. With the argument "raster" it asks the
// toolkit for no OpenGL.

#include <QApplication>
#include <QWidget>

#include <cstring>

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets, argc > 1 && std::strcmp(argv[1], "raster") == 0);
    QApplication application(argc, argv);
    QWidget window;
    window.resize(640, 480);
    window.show();
    return QApplication::exec();
}
