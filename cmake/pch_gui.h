// Precompiled for the layers with windows.
#include "pch_core.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
