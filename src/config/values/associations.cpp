// The stores of associations, filled from the settings file.
#include "config/values/associations.h"

AssociationSet Associations;
AssociationSet ViewerAssociations;
AssociationSet EditorAssociations;
AssociationSet FileColours;
AssociationSet DirectoryColours;
