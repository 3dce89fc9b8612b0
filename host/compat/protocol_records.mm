#import <FxPlug/protocol_records.h>

@implementation protocol_record_holder
@end
