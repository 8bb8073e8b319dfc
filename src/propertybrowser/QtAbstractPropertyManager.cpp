#include "propertybrowser/QtAbstractPropertyManager.h"

QtAbstractPropertyManager::QtAbstractPropertyManager(QObject* parent) : QObject(parent) {}
