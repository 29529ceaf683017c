// Web views.
#include "zebwebview/ZEBWebView.h"

namespace zebwebview {

ZEBWebView::ZEBWebView(RenderingModel /*model*/) {}

ZEBWebView::~ZEBWebView() = default;

}  // namespace zebwebview
