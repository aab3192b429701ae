<?xml version="1.0" encoding="UTF-8"?>
<!-- How a photograph was taken, in readable form. For style sheets to import; apply each template but the first to a
     JPEG element. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform"
                xmlns:math="http://exslt.org/math" xmlns:str="http://exslt.org/strings"
                exclude-result-prefixes="math str">

  <xsl:variable name="smallLetters" select="'abcdefghijklmnopqrstuvwxyz'"/>
  <xsl:variable name="capitals" select="'ABCDEFGHIJKLMNOPQRSTUVWXYZ'"/>

  <xsl:template match="JPEGs" mode="number">
    <xsl:value-of select="concat(count(JPEG), ' photograph')"/>
    <xsl:if test="count(JPEG) != 1">s</xsl:if>
  </xsl:template>

  <xsl:template match="JPEG" mode="title">
    <xsl:variable name="title" select="normalize-space(Exif/IFD[@id='9C9B'])"/>
    <xsl:choose>
      <xsl:when test="$title"><xsl:value-of select="$title"/></xsl:when>
      <xsl:otherwise><xsl:value-of select="normalize-space(Exif/IFD[@id='010E'])"/></xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <!-- Many model names begin with the name of the maker, or with the part of it that people use: "NIKON CORPORATION",
       "NIKON D70". -->
  <xsl:template match="JPEG" mode="camera">
    <xsl:variable name="make" select="normalize-space(Exif/IFD[@id='010F'])"/>
    <xsl:variable name="model" select="normalize-space(Exif/IFD[@id='0110'])"/>
    <xsl:variable name="brand" select="translate(substring-before(concat($model, ' '), ' '), $smallLetters, $capitals)"/>
    <xsl:variable name="words" select="concat(' ', translate($make, $smallLetters, $capitals), ' ')"/>
    <xsl:choose>
      <xsl:when test="contains($words, concat(' ', $brand, ' ')) or starts-with($model, $make)">
        <xsl:value-of select="$model"/>
      </xsl:when>
      <xsl:otherwise><xsl:value-of select="normalize-space(concat($make, ' ', $model))"/></xsl:otherwise>
    </xsl:choose>
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

  <!-- Degrees with six decimals, north and east positive: 48/1,51/1,2952/100 N as 48.858200. -->
  <xsl:template match="JPEG" mode="latitude">
    <xsl:apply-templates select="Exif/IFDG/IFD[@id='0002']" mode="degrees">
      <xsl:with-param name="isNegative" select="starts-with(Exif/IFDG/IFD[@id='0001'], 'S')"/>
    </xsl:apply-templates>
  </xsl:template>

  <xsl:template match="JPEG" mode="longitude">
    <xsl:apply-templates select="Exif/IFDG/IFD[@id='0004']" mode="degrees">
      <xsl:with-param name="isNegative" select="starts-with(Exif/IFDG/IFD[@id='0003'], 'W')"/>
    </xsl:apply-templates>
  </xsl:template>

  <xsl:template match="IFD" mode="degrees">
    <xsl:param name="isNegative"/>
    <xsl:variable name="parts" select="str:tokenize(., ',')"/>
    <xsl:variable name="degrees" select="substring-before($parts[1], '/') div substring-after($parts[1], '/')"/>
    <xsl:variable name="minutes" select="substring-before($parts[2], '/') div substring-after($parts[2], '/')"/>
    <!-- Cameras that note fractions of minutes write 0/0 here, or 0/1. -->
    <xsl:variable name="given" select="substring-before($parts[3], '/') div substring-after($parts[3], '/')"/>
    <xsl:variable name="seconds" select="sum(str:tokenize($given, ' ')[number(.) = number(.)])"/>
    <xsl:variable name="all" select="$degrees + $minutes div 60 + $seconds div 3600"/>
    <xsl:if test="$all &gt;= 0 and $all &lt;= 180">
      <xsl:value-of select="format-number((1 - 2 * boolean($isNegative)) * $all, '0.000000')"/>
    </xsl:if>
  </xsl:template>

  <!-- 1/125 s; 8 s; 10/1250 as 1/125 s. Some cameras give it only as a power of two. -->
  <xsl:template match="JPEG" mode="time">
    <xsl:variable name="time" select="Exif/IFDE/IFD[@id='829A']"/>
    <xsl:variable name="power" select="Exif/IFDE/IFD[@id='9201']"/>
    <xsl:variable name="given" select="substring-before($time, '/') div substring-after($time, '/')"/>
    <xsl:variable name="halvings" select="substring-before($power, '/') div substring-after($power, '/')"/>
    <xsl:variable name="meant" select="math:power(2, -$halvings)"/>
    <xsl:choose>
      <xsl:when test="$given &gt; 0"><xsl:call-template name="seconds"><xsl:with-param name="number" select="$given"/></xsl:call-template></xsl:when>
      <xsl:when test="not($time) and $meant &gt; 0"><xsl:call-template name="seconds"><xsl:with-param name="number" select="$meant"/></xsl:call-template></xsl:when>
    </xsl:choose>
  </xsl:template>

  <xsl:template name="seconds">
    <xsl:param name="number"/>
    <xsl:choose>
      <xsl:when test="$number &lt; 0.00001 or $number &gt; 1000000"/>
      <xsl:when test="$number * 3 &lt; 1"><xsl:value-of select="concat('1/', round(1 div $number), ' s')"/></xsl:when>
      <xsl:otherwise><xsl:value-of select="concat(format-number($number, '0.#'), ' s')"/></xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <xsl:template match="JPEG" mode="aperture">
    <xsl:variable name="aperture" select="Exif/IFDE/IFD[@id='829D']"/>
    <xsl:variable name="power" select="Exif/IFDE/IFD[@id='9202']"/>
    <xsl:variable name="given" select="substring-before($aperture, '/') div substring-after($aperture, '/')"/>
    <xsl:variable name="doublings" select="substring-before($power, '/') div substring-after($power, '/')"/>
    <xsl:variable name="meant" select="math:power(2, $doublings div 2)"/>
    <xsl:choose>
      <xsl:when test="$given &gt; 0 and $given &lt; 1000">f/<xsl:value-of select="format-number($given, '0.#')"/></xsl:when>
      <xsl:when test="not($aperture) and $meant &gt; 0 and $meant &lt; 1000">f/<xsl:value-of select="format-number($meant, '0.#')"/></xsl:when>
    </xsl:choose>
  </xsl:template>

  <xsl:template match="JPEG" mode="iso">
    <xsl:variable name="iso" select="normalize-space(Exif/IFDE/IFD[@id='8827'])"/>
    <xsl:if test="$iso">ISO <xsl:value-of select="$iso"/></xsl:if>
  </xsl:template>

  <xsl:template match="JPEG" mode="focal">
    <xsl:variable name="focal" select="Exif/IFDE/IFD[@id='920A']"/>
    <xsl:variable name="number" select="substring-before($focal, '/') div substring-after($focal, '/')"/>
    <xsl:if test="$number &gt; 0 and $number &lt; 100000"><xsl:value-of select="format-number($number, '0.#')"/> mm</xsl:if>
  </xsl:template>

</xsl:stylesheet>
