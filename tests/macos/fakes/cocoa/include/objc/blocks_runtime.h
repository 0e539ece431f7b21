// GNUstep asks for blocks under this name, and GCC's runtime brings none.
#include <Block.h>
