// A Lua state with the drawing modules, canvases with a real surface, and draw scopes
// opened from C++ exactly as a draw hook opens them.
#pragma once

#include <string>
#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "tests/LuaTestFixture.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/cairo/CairoSupplier.h"
#include "zebui/inkwell/cairo/CairoSurface.h"

// A toolkit surface and the Inkwell a draw message would carry for it.
struct Canvas {
    Canvas(zebui::inkwell::CairoSupplier& supplier, int size)
        : surface(supplier.MakeOffscreenCairoSurface(size, size, false)),
          inkwell(&supplier, surface.get()) {}

    bool isClear(int x, int y) { return surface->ReadPixel(x, y)[3] == 0; }
    // How many pixels hold any ink.
    int inkedPixelCount() {
        int inked = 0;
        for (int y = 0; y < surface->Height(); ++y)
            for (int x = 0; x < surface->Width(); ++x)
                if (!isClear(x, y)) ++inked;
        return inked;
    }

    boost::intrusive_ptr<zebui::inkwell::CairoSurface> surface;
    zebui::inkwell::Inkwell inkwell;
};

extern const zebui::inkwell::PixelRGBA kRedPixel;
extern const zebui::inkwell::PixelRGBA kBluePixel;

// Globals for scripts: rect(l, t, w, h), point(x, y), red, blue; every drawing module
// required; fullCollect() runs lua_gc(LUA_GCCOLLECT) from inside a script.
class DrawingTest : public LuaTest {
protected:
    void SetUp() override;

    // Calls the global function name with a scoped Inkwell proxy for inkwell, as a draw
    // hook does; a Lua error in it fails the test.
    void draw(zebui::inkwell::Inkwell& inkwell, const std::string& name);
    // Makes a global C function that opens a nested scope on inkwell and calls the global
    // function named by its argument there: a parent dispatching its draw to a child.
    void defineDispatch(const char* global, zebui::inkwell::Inkwell& inkwell);

    // What "%p" makes of a null pointer, as in "zebInkwell(<this>)".
    static std::string nullPointerText();
    // The entries of the canvas's call log that begin with prefix.
    static std::vector<std::string> loggedCalls(const Canvas& canvas, const std::string& prefix);

    zebui::inkwell::CairoSupplier mSupplier;
    Canvas mCanvas{mSupplier, 16};
    Canvas mOther{mSupplier, 16};
};
