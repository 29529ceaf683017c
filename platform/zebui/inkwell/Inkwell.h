// The toolkit's drawing object: a supplier and the surface it draws on.
#pragma once

namespace zebui {
namespace inkwell {

class SupplierInterface;
class SurfaceInterface;

// Holds neither pointer: whoever makes an Inkwell keeps both alive as long as it lives.
class Inkwell {
public:
    Inkwell(SupplierInterface* supplier, SurfaceInterface* surface);
    virtual ~Inkwell();

    SupplierInterface* GetSupplier() const { return mSupplier; }
    SurfaceInterface* GetSurface() const { return mSurface; }

private:
    SupplierInterface* mSupplier;
    SurfaceInterface* mSurface;
};

}  // namespace inkwell
}  // namespace zebui
