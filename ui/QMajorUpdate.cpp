#include "ui/QMajorUpdate.h"

QMajorUpdate::QMajorUpdate(QWidget *parent) : QShowUpdate(parent, Kind::Major) {}
