// Writes the container of a GIF stream: header, extensions, image descriptor, trailer.
#include "oxa/images/KxGifImage.h"

#include <algorithm>
#include <cstring>

namespace
{
constexpr unsigned char extensionIntroducer = 0x21;
constexpr unsigned char graphicControlLabel = 0xF9;
constexpr unsigned char commentLabel = 0xFE;
constexpr unsigned char applicationLabel = 0xFF;
constexpr unsigned char hasColorTable = 0x80;
constexpr unsigned char flagsWithoutTable = 0x11;

void writeColorTable(const RGBQUAD* colors, unsigned long count, CKxMemFile* file)
{
    unsigned char table[256 * 3];
    unsigned char* next = table;
    for (unsigned long i = 0; i < std::min(count, 256UL); ++i)
    {
        *next++ = colors[i].rgbRed;
        *next++ = colors[i].rgbGreen;
        *next++ = colors[i].rgbBlue;
    }
    file->Write(table, 1, static_cast<std::size_t>(next - table));
}
} // namespace

bool CKxGifImage::Encode(CByteArray& data)
{
    data.RemoveAll();
    CKxMemFile file;
    if (!file.Open() || !Encode(&file))
        return false;
    data.SetSize(file.Size());
    std::memcpy(data.GetData(), file.GetBuffer(false), static_cast<std::size_t>(data.GetSize()));
    return true;
}

bool CKxGifImage::Encode(unsigned char*& buffer, long& size)
{
    if (buffer)
        return false;
    CKxMemFile file;
    if (!file.Open() || !Encode(&file))
        return false;
    size = file.Size();
    buffer = file.GetBuffer(true);
    return true;
}

bool CKxGifImage::Encode(CKxMemFile* file)
{
    if (EncodeSafeCheck(file))
        return false;
    if (GetBpp() > 8)
        return EncodeRGB(file);
    EncodeHeader(file);
    EncodeExtension(file);
    EncodeComment(file);
    EncodeBody(file, false);
    file->PutC(';');
    return true;
}

bool CKxGifImage::EncodeSafeCheck(CKxMemFile* file)
{
    return !file || !IsValid();
}

void CKxGifImage::EncodeHeader(CKxMemFile* file)
{
    file->Write("GIF89a", 1, 6);
    Putword(m_Head.biWidth, file);
    Putword(m_Head.biHeight, file);
    // The resolution field begins one bit too high on purpose: readers ignore it.
    const int depthField = GetBpp() - 1;
    const int flags = GetPalette() ? hasColorTable | depthField << 5 | depthField : flagsWithoutTable;
    file->PutC(static_cast<unsigned char>(flags));
    file->PutC(0); // background index
    file->PutC(0); // aspect ratio
    writeColorTable(GetPalette(), GetNumColors(), file);
}

void CKxGifImage::EncodeExtension(CKxMemFile* file)
{
    const bool hasTransparentIndex = m_Info.nTransIndex != -1;
    m_graphicControl.flags = static_cast<std::uint8_t>((hasTransparentIndex ? 1 : 0) | (m_nDisposal & 7) << 2);
    m_graphicControl.delay = static_cast<std::uint16_t>(m_Info.nFrameDelay);
    m_graphicControl.transparentIndex = static_cast<std::uint8_t>(m_Info.nTransIndex);
    file->PutC(extensionIntroducer);
    file->PutC(graphicControlLabel);
    file->PutC(sizeof m_graphicControl);
    file->PutC(m_graphicControl.flags);
    Putword(m_graphicControl.delay, file);
    file->PutC(m_graphicControl.transparentIndex);
    file->PutC(0);
}

void CKxGifImage::EncodeLoopExtension(CKxMemFile* file)
{
    constexpr unsigned char identifier[] = {'N', 'E', 'T', 'S', 'C', 'A', 'P', 'E', '2', '.', '0'};
    file->PutC(extensionIntroducer);
    file->PutC(applicationLabel);
    file->PutC(sizeof identifier);
    file->Write(identifier, sizeof identifier, 1);
    file->PutC(3); // bytes of the sub-block
    file->PutC(1);
    Putword(m_nLoops, file);
    file->PutC(0);
}

void CKxGifImage::EncodeComment(CKxMemFile* file)
{
    const std::size_t length = std::min(strnlen(m_comment, sizeof m_comment), sizeof m_comment - 1);
    if (length == 0)
        return;
    file->PutC(extensionIntroducer);
    file->PutC(commentLabel);
    file->PutC(static_cast<unsigned char>(length));
    file->Write(m_comment, length, 1);
    file->PutC(0);
}

void CKxGifImage::EncodeBody(CKxMemFile* file, bool bLocalColorMap)
{
    m_encoderCursor = {0, m_Head.biHeight - 1, m_Head.biWidth * m_Head.biHeight};
    file->PutC(',');
    Putword(m_Info.nXOffset, file);
    Putword(m_Info.nYOffset, file);
    Putword(m_Head.biWidth, file);
    Putword(m_Head.biHeight, file);
    file->PutC(static_cast<unsigned char>(bLocalColorMap ? hasColorTable | (GetBpp() - 1) : 0));
    if (bLocalColorMap)
        writeColorTable(GetPalette(), GetNumColors(), file);
    const int minimumCodeSize = std::max<int>(GetBpp(), 2);
    file->PutC(static_cast<unsigned char>(minimumCodeSize));
    compressLZW(minimumCodeSize + 1, file);
    m_lzwEncoder.output = nullptr; // the stream may end before this image does
    file->PutC(0);
}

void CKxGifImage::Putword(int word, CKxMemFile* file)
{
    file->PutC(static_cast<unsigned char>(word & 0xFF));
    file->PutC(static_cast<unsigned char>(word >> 8 & 0xFF));
}
