#include "ui/dialogs/QMajorUpdate.h"

QMajorUpdate::QMajorUpdate(QWidget *parent) : QShowUpdate(parent, Kind::Major) {}
