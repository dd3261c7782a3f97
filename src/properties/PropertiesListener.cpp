#include "PropertiesListener.h"

PropertiesListener::~PropertiesListener() = default;

void PropertiesListener::PropertyChanged(long) { }

void PropertiesListener::PropertyGroupChanged(long) { }
