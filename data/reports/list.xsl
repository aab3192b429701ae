<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!-- A plain text with a few lines per shot. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:import href="parts/shot.xsl"/>
  <xsl:output method="text"/>

  <xsl:template match="/JPEGs">
    <xsl:apply-templates select="." mode="number"/><xsl:text>&#13;&#10;</xsl:text>
    <xsl:apply-templates select="JPEG"/>
  </xsl:template>

  <xsl:template match="JPEG">
    <xsl:variable name="title"><xsl:apply-templates select="." mode="title"/></xsl:variable>
    <xsl:variable name="date"><xsl:apply-templates select="." mode="date"/></xsl:variable>
    <xsl:variable name="camera"><xsl:apply-templates select="." mode="camera"/></xsl:variable>
    <xsl:variable name="lens"><xsl:apply-templates select="." mode="lens"/></xsl:variable>
    <xsl:variable name="exposure">
      <xsl:apply-templates select="." mode="time"/><xsl:text>  </xsl:text>
      <xsl:apply-templates select="." mode="aperture"/><xsl:text>  </xsl:text>
      <xsl:apply-templates select="." mode="iso"/><xsl:text>  </xsl:text>
      <xsl:apply-templates select="." mode="focal"/>
    </xsl:variable>
    <xsl:value-of select="concat('&#13;&#10;', @folder, @fileName, '&#13;&#10;')"/>
    <xsl:call-template name="line"><xsl:with-param name="text" select="$title"/></xsl:call-template>
    <xsl:call-template name="line"><xsl:with-param name="text" select="$date"/></xsl:call-template>
    <xsl:call-template name="line"><xsl:with-param name="text" select="$camera"/></xsl:call-template>
    <xsl:call-template name="line"><xsl:with-param name="text" select="$lens"/></xsl:call-template>
    <xsl:call-template name="line"><xsl:with-param name="text" select="$exposure"/></xsl:call-template>
    <xsl:call-template name="line"><xsl:with-param name="text" select="Exif/IFD[@id='9C9E']"/></xsl:call-template>
  </xsl:template>

  <xsl:template name="line">
    <xsl:param name="text"/>
    <xsl:if test="normalize-space($text)">
      <xsl:value-of select="concat('  ', normalize-space($text), '&#13;&#10;')"/>
    </xsl:if>
  </xsl:template>

</xsl:stylesheet>
