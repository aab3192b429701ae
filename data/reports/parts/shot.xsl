<?xml version="1.0" encoding="UTF-8"?>
<!-- What a photograph says of how it was taken, in the words of people. For style sheets to import; each template is
     applied to a JPEG element. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">

  <xsl:template match="JPEG" mode="title">
    <xsl:variable name="title" select="normalize-space(Exif/IFD[@id='9C9B'])"/>
    <xsl:choose>
      <xsl:when test="$title"><xsl:value-of select="$title"/></xsl:when>
      <xsl:otherwise><xsl:value-of select="normalize-space(Exif/IFD[@id='010E'])"/></xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <!-- Many models begin with the name of their maker. -->
  <xsl:template match="JPEG" mode="camera">
    <xsl:variable name="make" select="normalize-space(Exif/IFD[@id='010F'])"/>
    <xsl:variable name="model" select="normalize-space(Exif/IFD[@id='0110'])"/>
    <xsl:if test="not(starts-with($model, $make))"><xsl:value-of select="concat($make, ' ')"/></xsl:if>
    <xsl:value-of select="$model"/>
  </xsl:template>

  <xsl:template match="JPEG" mode="lens">
    <xsl:value-of select="normalize-space(Exif/IFDE/IFD[@id='A434'])"/>
  </xsl:template>

  <!-- 2023:05:14 06:42:18 as 2023-05-14 06:42. -->
  <xsl:template match="JPEG" mode="date">
    <xsl:variable name="shot" select="normalize-space(Exif/IFDE/IFD[@id='9003'])"/>
    <xsl:if test="translate(substring($shot, 1, 4), '0 ', '')">
      <xsl:value-of select="concat(translate(substring($shot, 1, 10), ':', '-'), substring($shot, 11, 6))"/>
    </xsl:if>
  </xsl:template>

  <!-- 1/125 s; 8 s; 10/1250 as 1/125 s. -->
  <xsl:template match="JPEG" mode="time">
    <xsl:variable name="time" select="Exif/IFDE/IFD[@id='829A']"/>
    <xsl:variable name="upper" select="number(substring-before($time, '/'))"/>
    <xsl:variable name="lower" select="number(substring-after($time, '/'))"/>
    <xsl:choose>
      <xsl:when test="not($upper &gt; 0 and $lower &gt; 0)"/>
      <xsl:when test="$upper * 3 &lt; $lower"><xsl:value-of select="concat('1/', round($lower div $upper), ' s')"/></xsl:when>
      <xsl:otherwise><xsl:value-of select="concat(round($upper div $lower * 10) div 10, ' s')"/></xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <xsl:template match="JPEG" mode="aperture">
    <xsl:variable name="aperture" select="Exif/IFDE/IFD[@id='829D']"/>
    <xsl:variable name="number" select="substring-before($aperture, '/') div substring-after($aperture, '/')"/>
    <xsl:if test="$number &gt; 0 and $number &lt; 1000">f/<xsl:value-of select="round($number * 10) div 10"/></xsl:if>
  </xsl:template>

  <xsl:template match="JPEG" mode="iso">
    <xsl:variable name="iso" select="normalize-space(Exif/IFDE/IFD[@id='8827'])"/>
    <xsl:if test="$iso">ISO <xsl:value-of select="$iso"/></xsl:if>
  </xsl:template>

  <xsl:template match="JPEG" mode="focal">
    <xsl:variable name="focal" select="Exif/IFDE/IFD[@id='920A']"/>
    <xsl:variable name="number" select="substring-before($focal, '/') div substring-after($focal, '/')"/>
    <xsl:if test="$number &gt; 0 and $number &lt; 100000"><xsl:value-of select="round($number * 10) div 10"/> mm</xsl:if>
  </xsl:template>

</xsl:stylesheet>
