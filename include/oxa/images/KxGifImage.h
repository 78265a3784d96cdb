// A pixel image held as one device-independent bitmap block, with GIF reading and writing and colour reduction.
#pragma once

#include <afx.h>
#include <afxcoll.h>

#include <cstdint>
#include "oxa/Export.h"
#include "oxa/images/GifDecoderState.h"
#include "oxa/images/GifEncoderState.h"
#include "oxa/images/GifImageInfo.h"
#include "oxa/images/GifWire.h"
#include "oxa/images/KxGifImageIterator.h"
#include "oxa/images/KxMemFile.h"
#include "oxa/images/SharedBytes.h"

struct PixelBlock;

/// An image of 1, 4, 8 or 24 bits per pixel.
///
/// The block is a packed device-independent bitmap: a 40-byte header, the palette (2, 16, 256 or no entries of 4 bytes),
/// the rows. A row takes `GetEffWidth()` bytes; the bottom row of the picture comes first, and is row 0 of every
/// operation here. At 1 and 4 bits the leftmost pixel takes the high bits; at 24 bits a pixel is blue, green, red.
/// Pixels that nobody wrote are 0.
///
/// An image is empty (no block), valid, or a ghost, which borrows the block of another image and can be neither
/// destroyed nor created anew. Memory comes from malloc. A copy by the copy constructor shares the blocks: a write
/// through one is seen by the other, each stays usable, and the last one frees them; assignment copies the pixels.
///
/// Failures are plain results; nothing here throws or has a message. An object belongs to one thread at a time, but
/// `SetEscape` and `GetProgress` may be called from another thread while an operation runs.
class OXA_API CKxGifImage
{
public:
    using rgb_color = ::rgb_color;

    enum : unsigned long
    {
        /// The most pixels (width times height) that `Create`, and so a decode, takes on.
        MaximumPixels = 16384UL * 16384UL,
    };

    // Lifetime and memory

    /// An empty image.
    CKxGifImage();
    /// The first frame of a GIF stream; empty when it cannot be read.
    explicit CKxGifImage(CByteArray& data);
    /// As `Create`.
    CKxGifImage(unsigned long width, unsigned long height, unsigned long bpp);
    /// Shares the blocks of `other`, see above.
    CKxGifImage(const CKxGifImage& other);
    /// Copies pixels, planes and information.
    CKxGifImage& operator=(const CKxGifImage& other);
    virtual ~CKxGifImage();

    /// Makes a new block of `w` by `h` pixels, all of index or colour 0, with a black palette; `bpp` is rounded up to 1,
    /// 4, 8 or 24. The block, or null: for a ghost, a size of 0, more than `MaximumPixels`, or too little memory.
    void* Create(unsigned long w, unsigned long h, unsigned long bpp);
    /// Lets go of block and planes; the head keeps its sizes. False, and nothing done, for a ghost.
    bool Destroy();
    /// Makes this image one of the size, depth and information of `src`, with its pixels (`bImage`; otherwise only the
    /// palette), selection and alpha plane. Nothing happens with the image itself as `src`.
    void Copy(const CKxGifImage& src, bool bImage, bool bSelection, bool bAlpha);
    /// Moves block, head, information and planes here and leaves `from` empty, with all its information cleared.
    /// False, and nothing done, for a ghost.
    bool Transfer(CKxGifImage& from);
    /// Frees a block that was detached from a stream or handed over by `Encode`. Null is ignored.
    void FreeMemory(void* memory);

    /// The block, or null; it stays the image's.
    void* GetDIB() const { return m_pDib.Get(); }
    /// The start of a row, or null beyond the top or without block.
    unsigned char* GetBits(unsigned long row = 0);
    /// Header, palette and pixels in bytes.
    long GetSize() const;
    unsigned long GetHeight() const { return static_cast<unsigned long>(m_Head.biHeight); }
    unsigned long GetWidth() const { return static_cast<unsigned long>(m_Head.biWidth); }
    /// Bytes per row, a multiple of 4.
    unsigned long GetEffWidth() const { return m_Info.nEffWidth; }
    /// Palette entries: 2, 16, 256, or 0 at 24 bits.
    unsigned long GetNumColors() const { return m_Head.biClrUsed; }
    /// Bits per pixel.
    unsigned short GetBpp() const { return m_Head.biBitCount; }
    bool IsValid() const { return m_pDib.Get() != nullptr; }
    /// 1 at up to 8 bits per pixel, 2 above.
    unsigned char GetColorType() const { return m_Head.biBitCount <= 8 ? 1 : 2; }
    bool IsIndexed() const { return m_Head.biClrUsed != 0; }
    bool IsInside(long x, long y) const { return 0 <= y && y < m_Head.biHeight && 0 <= x && x < m_Head.biWidth; }
    /// Fills the pixels with a byte: at 1 bit any value but 0 becomes 255, at 4 bits the low nibble fills both.
    void Clear(unsigned char value);

    // The information record

    bool IsEnabled() const { return m_Info.bEnabled; }
    /// Kept for the caller; nothing here asks for it.
    void Enable(bool enable) { m_Info.bEnabled = enable; }
    /// The frames that the last decode counted.
    long GetNumFrames() const { return m_Info.nNumFrames; }
    long GetFrame() const { return m_Info.nFrame; }
    /// The frame to decode, from 0.
    void SetFrame(long frame) { m_Info.nFrame = static_cast<std::int32_t>(frame); }
    /// Hundredths of a second: of the last graphic control block read, and of the one written next.
    unsigned long GetFrameDelay() const { return m_Info.nFrameDelay; }
    void SetFrameDelay(unsigned long delay) { m_Info.nFrameDelay = static_cast<std::uint32_t>(delay); }
    unsigned long GetFlags() const { return m_Info.nFlags; }
    /// A word for the caller's use. With `bLockReserved` its high 16 bits become 0.
    void SetFlags(unsigned long flags, bool bLockReserved);
    long GetXDPI() const { return m_Info.nXDPI; }
    long GetYDPI() const { return m_Info.nYDPI; }
    /// Dots per inch; a value below 1 becomes 96.
    void SetXDPI(long dpi);
    void SetYDPI(long dpi);
    /// Where the frame stands on the logical screen when it is encoded. Null pointers are ignored.
    void GetOffset(long* x, long* y) const;
    void SetOffset(long x, long y);
    /// Percentage of a running `DecreaseBpp`. May be called from another thread.
    unsigned long GetProgress() const;
    /// -1 before `Decode` asks for the dimensions only; any value above 0 stops a decode, and any but 0 `DecreaseBpp`.
    /// May be called from another thread. The value stays until it is set again.
    void SetEscape(long escape);
    long GetEscape() const;

    // GIF properties

    /// How often an animation is repeated, as the stream says; 0: without end.
    long GetLoops() const { return m_nLoops; }
    void SetLoops(int loops) { m_nLoops = loops; }
    /// 0 to 7, of the last graphic control block.
    long GetDisposalMethod() const { return m_nDisposal; }
    void SetDisposalMethod(int disposal) { m_nDisposal = disposal; }
    /// At most 255 bytes are kept. Null is ignored.
    void SetComment(const char* text);
    /// Fills exactly 255 bytes of `text`: the comment and zeros. A comment of 255 bytes comes without a final zero. Null
    /// is ignored.
    void GetComment(char* text) const;

    // Palette

    /// In bytes: 4 for each entry.
    unsigned long GetPaletteSize() const { return m_Head.biClrUsed * 4UL; }
    /// The entries, or null without palette; they stay the image's.
    RGBQUAD* GetPalette() const;
    /// All zero for an entry that is not there.
    RGBQUAD GetPaletteColor(unsigned char i) const;
    /// False, and nothing written, without palette. `i` is not tested against the
    /// palette: behind it the bytes of the pixels are given, and black behind those.
    bool GetPaletteColor(unsigned char i, unsigned char* r, unsigned char* g, unsigned char* b) const;
    /// A write beyond the palette is ignored, here and below.
    void SetPaletteColor(unsigned char i, unsigned char r, unsigned char g, unsigned char b, unsigned char alpha = 0);
    void SetPaletteColor(unsigned char i, RGBQUAD color);
    void SetPaletteColor(unsigned char i, unsigned long colorref);
    /// From one array per channel. Nothing if `r` is null; a null `g` means `r`, a null `b` means `g`.
    void SetPalette(unsigned long n, unsigned char* r, unsigned char* g, unsigned char* b);
    void SetPalette(rgb_color* colors, unsigned long n);
    void SetPalette(RGBQUAD* colors, unsigned long n);
    /// Evenly from black to white.
    void SetGrayPalette();
    /// The standard table of 16 or of 256 colours; nothing at 1 and 24 bits.
    void SetStdPalette();
    /// Moves each entry towards a colour by `percent`: 0 keeps it, 100 and above is the colour. A negative value moves
    /// away from the colour, and channels wrap.
    void BlendPalette(unsigned long colorref, long percent);
    /// Whether entry i is grey i for every i: an 8-bit grey palette, and no other.
    bool IsGrayScale() const;
    /// Swaps two entries, and the pixels with them, so that the picture stays.
    void SwapIndex(unsigned char a, unsigned char b);
    /// False for palettes of different size or without entries.
    bool IsSamePalette(CKxGifImage& other, bool bCheckAlpha) const;
    /// The entries that `GetNearestIndex` may choose, counted from 0; 0: all.
    unsigned long GetClrImportant() const { return m_Head.biClrImportant; }
    /// 0 and values above 256 mean all. At most 2 at 1 bit, 16 at 4 bits; nothing at 24 bits.
    void SetClrImportant(unsigned long n);

    // Transparency

    /// -1: none.
    long GetTransIndex() const { return m_Info.nTransIndex; }
    void SetTransIndex(long index) { m_Info.nTransIndex = static_cast<std::int32_t>(index); }
    /// For images without palette.
    void SetTransColor(RGBQUAD color);
    RGBQUAD GetTransColor() const;
    bool IsTransparent() const { return m_Info.nTransIndex >= 0; }
    bool IsTransparent(long x, long y) const;

    // Pixels. x counts from the left, y from the bottom. Writing outside the image is ignored.

    /// Outside the image: the transparent index, or the first byte of the pixels if there is none. 0 without palette.
    unsigned char GetPixelIndex(long x, long y) const;
    /// Outside the image: the transparent colour, or that of pixel (0, 0) if there is none.
    RGBQUAD GetPixelColor(long x, long y, bool bGetAlpha = true) const;
    unsigned char GetPixelGray(long x, long y) const;
    /// Nothing at 24 bits.
    void SetPixelIndex(long x, long y, unsigned char index);
    /// With a palette the nearest entry is stored.
    void SetPixelColor(long x, long y, unsigned long colorref);
    void SetPixelColor(long x, long y, RGBQUAD color, bool bSetAlpha = false);
    /// The entry with the smallest sum of squared channel differences, the lowest of several. 0 without palette.
    unsigned char GetNearestIndex(RGBQUAD color);
    static RGBQUAD RGBtoRGBQUAD(unsigned long colorref);
    static unsigned long RGBQUADtoRGB(RGBQUAD color);

    /// Turns the image into one of `nbit` bits, 1, 4 or 8, on `palette` (2, 16 or 256 entries) or, for null, on black and
    /// white or the standard table. `clrImportant`, if not 0, limits the entries that are used. With `bErrorDiffusion` the
    /// rounding error of a pixel goes to its neighbours. False, and nothing done, for an empty image, a ghost, a depth
    /// above the present one, or without memory. `SetEscape` stops it; rows that it did not reach are 0.
    bool DecreaseBpp(unsigned long nbit, bool bErrorDiffusion, RGBQUAD* palette, unsigned long clrImportant);

#ifdef _WIN32
    /// A bitmap of the caller's: for null a section of the image's depth, else one of the device's. Null when empty.
    HBITMAP MakeBitmap(HDC hdc = nullptr);
    /// Takes over the pixels of a bitmap. False for a ghost, a null bitmap, or when it cannot be read.
    bool CreateFromHBITMAP(HBITMAP hbmp, HPALETTE hpal = nullptr);
#endif

    // Reading GIF

    bool Decode(CByteArray& data);
    bool Decode(unsigned char* data, unsigned long size);
    /// Reads frame `GetFrame()`, composed over those before it, from the position of the stream. A stream without global
    /// table whose frames are tiles is read as one 24-bit image. False for null, a stream that is no GIF or has no such
    /// frame, and after `SetEscape`. Damage inside a frame is tolerated.
    ///
    /// Whatever sizes a stream claims, a decode takes less memory than three canvases of at most `MaximumPixels` and
    /// 1 MiB, beside the stream. Its time grows with the length of the stream (a code gives at most 4,096 pixels) and,
    /// for each frame, with its rows and a 64th of its area; streams of a class derived from `CKxMemFile` are read byte
    /// by byte, and there each frame costs its area.
    bool Decode(CKxMemFile* file);

    // Writing GIF

    bool Encode(CByteArray& data);
    /// `buffer` must be null; the block that it takes is the caller's (`FreeMemory`).
    bool Encode(unsigned char*& buffer, long& size);
    /// Writes the image to the stream, one of 24 bits as a mosaic of small frames. False for null or an empty image.
    bool Encode(CKxMemFile* file);

protected:
    void Startup();
    /// Copies the information record, if this image has no block.
    void CopyInfo(const CKxGifImage& src);
    /// Borrows everything from another image; it may go before this one does. Null is ignored.
    void Ghost(CKxGifImage* from);

    // Decoder

    bool DecodeExtension(CKxMemFile* file);
    int get_byte(CKxMemFile* file);
    int out_line(CKxGifImageIterator* iterator, unsigned char* row, int length);
    short init_exp(short size);
    short get_next_code(CKxMemFile* file);
    short decoder(CKxMemFile* file, CKxGifImageIterator* iterator, short width, int& badCodes);
    int get_num_frames(CKxMemFile* file, tag_TabCol* table, tag_dscgif* screen);
    long seek_next_image(CKxMemFile* file, long position);
    void GifMix(CKxGifImage& frame, tag_image& descriptor);

    // Encoder

    bool EncodeSafeCheck(CKxMemFile* file);
    void EncodeHeader(CKxMemFile* file);
    void EncodeExtension(CKxMemFile* file);
    void EncodeLoopExtension(CKxMemFile* file);
    void EncodeComment(CKxMemFile* file);
    void EncodeBody(CKxMemFile* file, bool bLocalColorMap);
    bool EncodeRGB(CKxMemFile* file);
    int GifNextPixel();
    void Putword(int word, CKxMemFile* file);
    void compressLZW(int initBits, CKxMemFile* file);
    void compressNONE(int initBits, CKxMemFile* file);
    void output(short code);
    void cl_hash(long size);
    void char_out(int value);
    void flush_char();

    GraphicControl m_graphicControl;
    EncoderCursor m_encoderCursor;
    BitAccumulator m_encoderBits;
    InterlaceState m_interlace;
    InputBuffer m_input;
    LzwDecoderState m_lzwDecoder;
    LzwEncoderState m_lzwEncoder;
    char m_comment[256]; // always terminated
    std::int32_t m_nLoops;
    std::int32_t m_nDisposal;
    SharedBytes m_pDib;
    BITMAPINFOHEADER m_Head;
    GifImageInfo m_Info;
    SharedBytes m_pSelection; // null, or width times height bytes
    SharedBytes m_pAlpha;

private:
    class GifReading; // one run of `Decode`

    bool ReadControl(CKxMemFile& file);
    bool ReadComment(CKxMemFile& file);
    bool ReadApplication(CKxMemFile& file);

    void* CreateIn(SharedBytes (*allocate)(std::size_t), unsigned long w, unsigned long h, unsigned long bpp);
    void PointAtPixels();
    PixelBlock Pixels() const;
    bool StartReduction(RGBQUAD* palette);
    bool ReduceTo(CKxGifImage& target, bool diffuse);
    void SetBlackAndWhite();
    void ForgetLastColor()
    {
        m_Info.bLastValid = false;
    }
    unsigned char* Row(long y) const;
};
