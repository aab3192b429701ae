<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!-- How a photograph was taken, in readable form. For style sheets to import; apply each template that has a mode
     to a JPEG element, and those of numbers and languages to JPEGs. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform"
                xmlns:str="http://exslt.org/strings" xmlns:values="urn:ovisto:values"
                exclude-result-prefixes="str values">

  <xsl:variable name="smallLetters" select="'abcdefghijklmnopqrstuvwxyz'"/>
  <xsl:variable name="capitals" select="'ABCDEFGHIJKLMNOPQRSTUVWXYZ'"/>

  <!-- A text in the language of the window. Other programs do not have the function, and give it in English. -->
  <xsl:template name="words">
    <xsl:param name="text"/>
    <xsl:choose>
      <xsl:when test="function-available('values:words')"><xsl:value-of select="values:words($text)"/></xsl:when>
      <xsl:otherwise><xsl:value-of select="$text"/></xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <xsl:template match="JPEGs" mode="number">
    <xsl:choose>
      <xsl:when test="function-available('values:counted')">
        <xsl:value-of select="values:counted(count(JPEG), '%n photograph', '%n photographs')"/>
      </xsl:when>
      <xsl:otherwise>
        <xsl:value-of select="concat(count(JPEG), ' photograph')"/>
        <xsl:if test="count(JPEG) != 1">s</xsl:if>
      </xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <!-- For the attribute "lang" of a web page: the code of the language that its texts are in. -->
  <xsl:template match="JPEGs" mode="language">
    <xsl:call-template name="words"><xsl:with-param name="text" select="'en'"/></xsl:call-template>
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

  <xsl:template match="JPEG" mode="date">
    <xsl:variable name="shot" select="Exif/IFDE/IFD[@id='9003'][1]"/>
    <xsl:variable name="meant"><xsl:apply-templates select="$shot" mode="meant"/></xsl:variable>
    <xsl:choose>
      <xsl:when test="string($meant)"><xsl:value-of select="$meant"/></xsl:when>
      <xsl:when test="translate(substring($shot, 1, 4), '0: ', '')"><xsl:value-of select="normalize-space($shot)"/></xsl:when>
    </xsl:choose>
  </xsl:template>

  <!-- 2023-05. -->
  <xsl:template match="JPEG" mode="month">
    <xsl:variable name="shot" select="normalize-space(Exif/IFDE/IFD[@id='9003'])"/>
    <xsl:if test="translate(substring($shot, 1, 4), '0 ', '')">
      <xsl:value-of select="translate(substring($shot, 1, 7), ':', '-')"/>
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

  <!-- What a value means, as the program says it; nothing for one that makes no sense, such as 0/0. Other programs do not
       have the function, and give the value as it is. -->
  <xsl:template match="IFD" mode="meant">
    <xsl:choose>
      <xsl:when test="not(function-available('values:text'))"><xsl:value-of select="."/></xsl:when>
      <xsl:when test="values:text(.) != string(.)"><xsl:value-of select="values:text(.)"/></xsl:when>
    </xsl:choose>
  </xsl:template>

  <!-- Some cameras give it only as a power of two. -->
  <xsl:template match="JPEG" mode="time">
    <xsl:apply-templates select="(Exif/IFDE/IFD[@id='829A'] | Exif/IFDE[not(IFD/@id='829A')]/IFD[@id='9201'])[1]" mode="meant"/>
  </xsl:template>

  <xsl:template match="JPEG" mode="aperture">
    <xsl:apply-templates select="(Exif/IFDE/IFD[@id='829D'] | Exif/IFDE[not(IFD/@id='829D')]/IFD[@id='9202'])[1]" mode="meant"/>
  </xsl:template>

  <xsl:template match="JPEG" mode="iso">
    <xsl:variable name="iso" select="normalize-space(Exif/IFDE/IFD[@id='8827'])"/>
    <xsl:if test="$iso">ISO <xsl:value-of select="$iso"/></xsl:if>
  </xsl:template>

  <xsl:template match="JPEG" mode="focal">
    <xsl:apply-templates select="Exif/IFDE/IFD[@id='920A'][1]" mode="meant"/>
  </xsl:template>

</xsl:stylesheet>
