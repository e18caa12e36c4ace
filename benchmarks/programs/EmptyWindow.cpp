// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// An empty window of the toolkit: the least that starting a program with a window costs.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(640, 480);
    window.show();
    return QApplication::exec();
}
