#pragma once

#include <Foundation/Foundation.h>

// quartzcore/calayer, cornerradius, maskstobounds
@interface CALayer : NSObject
@property CGFloat cornerRadius;
@property BOOL masksToBounds;
@end
