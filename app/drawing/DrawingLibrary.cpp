#include <app/drawing/Drawing.h>

const velmora::app::Drawing velmoraDrawing = {velmora::app::drawPicture};
